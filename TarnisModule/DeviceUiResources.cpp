#include "TarnisModule/DeviceUiResources.h"

#include "ResourceFormat/DisplaySize.h"
#include "TarnisModule/Answer.h"

#include <QDBusMetaType>
#include <QList>
#include <QPair>
#include <QSize>
#include <QStringList>

#include <algorithm>

namespace
{

// A supported display size in pixels, and the path of its dimension file.
using Display = QPair<QSize, QString>;

bool isSmaller(const Display& left, const Display& right)
{
    return qMakePair(left.first.width(), left.first.height()) < qMakePair(right.first.width(), right.first.height());
}

} // namespace

namespace TarnisModule
{

DeviceUiResources::DeviceUiResources(const ResourceFormat::Directory& resourceDirectory)
    : directory(resourceDirectory)
{
    qDBusRegisterMetaType<Display>();
    qDBusRegisterMetaType<QList<Display>>();
}

QDBusVariant DeviceUiResources::getFontIniFilePath() const
{
    return Answer::readableFile(directory.fontFile());
}

QDBusVariant DeviceUiResources::getColorIniFilePath() const
{
    return Answer::readableFile(directory.colorFile());
}

QDBusVariant DeviceUiResources::getSupportedScreenSizes() const
{
    QList<Display> displays;
    QStringList problems;
    for (const QFileInfo& file : directory.dimensionFiles()) {
        const QString path = file.filePath();
        const QSize size = ResourceFormat::DisplaySize::fromName(file.completeBaseName());
        const QString problem =
            size.isValid() ? Answer::fileProblem(path) : QStringLiteral("%1 is not named WIDTHxHEIGHT.ini").arg(path);
        if (problem.isNull())
            displays.append({size, path});
        else
            problems.append(problem);
    }
    if (displays.isEmpty() && problems.isEmpty())
        problems.append(QStringLiteral("%1 contains no dimension file").arg(directory.dimensionFolder()));
    if (!problems.isEmpty())
        return Answer::error(problems.join(QStringLiteral("; ")));
    std::sort(displays.begin(), displays.end(), isSmaller);
    return Answer::value(QVariant::fromValue(displays));
}

} // namespace TarnisModule
