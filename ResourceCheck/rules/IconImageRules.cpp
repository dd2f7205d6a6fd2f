#include "ResourceCheck/Project.h"
#include "ResourceCheck/reading/ImageFault.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/RegularFile.h"

#include <QHash>
#include <QSet>

namespace ResourceCheck
{

namespace
{

void checkImages(const Project& project, const Report& report)
{
    const IconDirectory& icons = project.resources.icons;
    QSet<QString> seen;
    for (const IconPath& path : project.resources.iconPaths()) {
        const QFileInfo file = icons.file(path.path);
        // Several icons can be links to the same file.
        const QString identity = file.canonicalFilePath() + QLatin1Char('.') + file.suffix();
        if (!icons.contains(path.path) || seen.contains(identity))
            continue;
        seen.insert(identity);
        const QString fault = imageFault(file);
        if (!fault.isNull())
            report(path.place, QStringLiteral("\"%1\" %2").arg(path.path, fault));
    }
}

void reportSame(const IconDirectory& icons, const IconAlias& alias, const Report& report)
{
    QHash<QByteArray, QString> contexts;
    for (const IconPath& path : alias.paths) {
        if (!icons.contains(path.path))
            continue;
        QString problem;
        const QByteArray content = ResourceFormat::RegularFile::readAll(icons.file(path.path).filePath(), problem);
        const QString first = contexts.value(content, path.context);
        contexts.insert(content, first);
        if (first != path.context) {
            report(path.place,
                   QStringLiteral("the alias \"%1\" has the same icon for \"%2\"; use another icon or remove this one")
                       .arg(alias.name, first));
        }
    }
}

void checkSame(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        for (const IconAlias& alias : table.aliases)
            reportSame(project.resources.icons, alias, report);
    }
}

} // namespace

QVector<Rule> iconImageRules()
{
    return {
        {QStringLiteral("icon-unreadable"), Severity::Error,
         QStringLiteral("An image that cannot be read, or is not what its name says, is not shown as intended."),
         checkImages,
         QStringLiteral("Save the image again, in the format that its suffix names. SVG and PNG are safe.")},
        {QStringLiteral("icon-same"), Severity::Warning,
         QStringLiteral("The icon does not change when the context changes."), checkSame,
         QStringLiteral("Draw a different icon for the context, or remove the context from the alias.")},
    };
}

} // namespace ResourceCheck
