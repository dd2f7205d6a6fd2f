#include "TarnisModule/DeviceUiResources.h"

#include "TarnisModule/Answer.h"

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

QDBusVariant DeviceUiResources::getSupportedScreenSizes() const
{
    QString problem;
    const QList<QPair<QSize, QString>> displays = resources.displaySizes(problem);
    return Answer::of(QVariant::fromValue(displays), problem);
}

} // namespace TarnisModule
