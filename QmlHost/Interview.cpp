#include "QmlHost/Interview.h"

#include "TarnisLibrary/TarnisDefinitions.h"

namespace QmlHost
{

Interview::Interview()
{
    const auto noteFailure = [this] { hasReplies = false; };
    QObject::connect(&resources, &DBusConnectorBase::dBusConnectionError, noteFailure);
    QObject::connect(&iconProvider, &DBusConnectorBase::dBusConnectionError, noteFailure);
}

QString Interview::busName()
{
    return QStringLiteral("Module.") + TarnisDefinitions::getModuleName();
}

QString Interview::silence()
{
    return QStringLiteral("The service %1 does not answer; it is asked again until it does.").arg(busName());
}

void Interview::run(const std::function<bool()>& isStopRequested)
{
    const std::function<void()> questions[] = {
        [this] { colorFile = resources.getColorIniFilePath(); },
        [this] { fontFile = resources.getFontIniFilePath(); },
        [this] { displaySizes = resources.getSupportedDisplaySizes(); },
        [this] { iconFolder = iconProvider.getIconResourcesBasePath(); },
        [this] { mappingTable = iconProvider.getIconResourcesMappingTable(QString()); },
    };
    for (const auto& question : questions) {
        if (hasReplies && !isStopRequested())
            question();
    }
}

bool Interview::isReached() const
{
    return hasReplies;
}

Answers Interview::answers(bool includesIconFiles) const
{
    Answers answers;
    answers.setColorFile(colorFile);
    answers.setFontFile(fontFile);
    answers.setDisplaySizes(displaySizes);
    answers.setIcons(iconFolder, mappingTable, includesIconFiles);
    if (!answers.directory().isEmpty())
        answers.setTexts(answers.directory());
    return answers;
}

QString Interview::problem() const
{
    if (!hasReplies)
        return silence();
    const QPair<bool, QString> parts[] = {
        {colorFile.isEmpty(), QStringLiteral("the color file")},
        {fontFile.isEmpty(), QStringLiteral("the font file")},
        {displaySizes.isEmpty(), QStringLiteral("the display sizes")},
        {iconFolder.isEmpty(), QStringLiteral("the icon directory")},
        {mappingTable.isEmpty(), QStringLiteral("the icon mapping table")},
    };
    QStringList missing;
    for (const auto& [isMissing, name] : parts) {
        if (isMissing)
            missing.append(name);
    }
    if (missing.isEmpty())
        return QString();
    return QStringLiteral("The service %1 does not provide %2; the log contains the reasons.")
        .arg(busName(), missing.join(QStringLiteral(", ")));
}

} // namespace QmlHost
