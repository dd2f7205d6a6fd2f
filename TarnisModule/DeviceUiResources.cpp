#include "TarnisModule/DeviceUiResources.h"

#include "TarnisModule/Answer.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace
{

// The size that the name of a dimension file says; invalid when it says none.
QSize sizeOfName(const QString& baseName)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([1-9][0-9]{0,8})x([1-9][0-9]{0,8})\\z"));
    const QRegularExpressionMatch match = pattern.match(baseName);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

bool isSmaller(const DisplaySize& left, const DisplaySize& right)
{
    return qMakePair(left.first.width(), left.first.height()) < qMakePair(right.first.width(), right.first.height());
}

} // namespace

DeviceUiResources::DeviceUiResources(const QString& directory, QObject* parent)
    : QObject(parent)
    , directory(directory)
{
}

QDBusVariant DeviceUiResources::getFontIniFilePath() const
{
    return Answer::readableFile(directory + QStringLiteral("/fonts.ini"));
}

QDBusVariant DeviceUiResources::getColorIniFilePath() const
{
    return Answer::readableFile(directory + QStringLiteral("/colors.ini"));
}

QDBusVariant DeviceUiResources::getSupportedScreenSizes() const
{
    const QDir dimensions(directory + QStringLiteral("/dimensions"));
    const QFileInfoList files = dimensions.entryInfoList(
        {QStringLiteral("*.ini")}, QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    if (files.isEmpty())
        return Answer::error(QStringLiteral("%1 holds no dimension file").arg(dimensions.path()));
    QList<DisplaySize> sizes;
    QStringList problems;
    for (const QFileInfo& file : files) {
        const QString path = file.filePath();
        const QSize size = sizeOfName(file.completeBaseName());
        const QString problem =
            size.isValid() ? Answer::fileProblem(path) : QStringLiteral("%1 is not named WIDTHxHEIGHT.ini").arg(path);
        if (problem.isNull())
            sizes.append({size, path});
        else
            problems.append(problem);
    }
    if (!problems.isEmpty())
        return Answer::error(problems.join(QStringLiteral("; ")));
    std::sort(sizes.begin(), sizes.end(), isSmaller);
    return Answer::value(QVariant::fromValue(sizes));
}
