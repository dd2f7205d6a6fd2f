#include "TarnisModule/DeviceUiResources.h"

#include "TarnisModule/Answer.h"
#include "TarnisModule/Log.h"

#include <QDBusMetaType>
#include <QList>
#include <QPair>
#include <QSize>

namespace TarnisModule
{

DeviceUiResources::DeviceUiResources(const ResourceFormat::Directory& resourceDirectory)
    : resources(resourceDirectory)
{
    qDBusRegisterMetaType<QPair<QSize, QString>>();
    qDBusRegisterMetaType<QList<QPair<QSize, QString>>>();
}

QDBusVariant DeviceUiResources::getFontIniFilePath() const
{
    QString problem;
    const QString path = resources.fontFile(problem);
    return Answer::of(path, problem);
}

QDBusVariant DeviceUiResources::getColorIniFilePath() const
{
    QString problem;
    const QString path = resources.colorFile(problem);
    return Answer::of(path, problem);
}

QDBusVariant DeviceUiResources::getSupportedScreenSizes()
{
    QStringList problems;
    const QList<QPair<QSize, QString>> displays = resources.displaySizes(problems);
    if (displays.isEmpty())
        return Answer::of({}, problems.join(QStringLiteral("; ")));
    for (const QString& problem : qAsConst(problems)) {
        if (!loggedProblems.contains(problem))
            Log::write(QStringLiteral("left out: ") + problem);
    }
    loggedProblems = problems;
    return Answer::of(QVariant::fromValue(displays), QString());
}

} // namespace TarnisModule
