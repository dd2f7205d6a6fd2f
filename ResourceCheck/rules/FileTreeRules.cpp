#include "ResourceCheck/Project.h"
#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/rules/Rule.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

namespace ResourceCheck
{

namespace
{

// Everything below the directory that is not hidden, without following links to directories.
Rule::Check forEachEntry(void (*check)(const QFileInfo& entry, const QString& root, const Report& report))
{
    return [check](const Project& project, const Report& report) {
        const QString& path = project.resources.directory.path();
        const QString root = QFileInfo(path).canonicalFilePath();
        for (QDirIterator entries(path, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot,
                                  QDirIterator::Subdirectories);
             entries.hasNext();) {
            entries.next();
            check(entries.fileInfo(), root, report);
        }
    };
}

void checkLink(const QFileInfo& entry, const QString& root, const Report& report)
{
    if (!entry.isSymLink() || !entry.exists())
        return;
    const QString target = entry.canonicalFilePath();
    if (target != root && !target.startsWith(root + QLatin1Char('/'))) {
        report(
            {entry.filePath()},
            QStringLiteral("the link leads to \"%1\", outside of the resource directory; copy the file").arg(target));
    }
}

bool isPublic(const QFileInfo& entry)
{
    const QFile::Permissions needed = entry.isDir() ? QFile::ReadOther | QFile::ExeOther : QFile::ReadOther;
    return (entry.permissions() & needed) == needed;
}

// In a private working copy, the modes say nothing about the device.
void checkMode(const QFileInfo& entry, const QString& root, const Report& report)
{
    if (entry.isSymLink() || isPublic(entry) || !isPublic(QFileInfo(root)))
        return;
    const QLatin1String mode(entry.isDir() ? "o+rx" : "o+r");
    report({entry.filePath()}, QStringLiteral("other users cannot read this; run chmod %1 on it").arg(mode));
}

void checkIconNames(const Project& project, const Report& report)
{
    static const QRegularExpression special(QStringLiteral("[#?%]"));
    for (const IconPath& path : project.resources.iconPaths()) {
        const QRegularExpressionMatch match = special.match(path.path);
        if (match.hasMatch()) {
            report(path.place,
                   QStringLiteral("\"%1\" contains \"%2\", which has a meaning in URLs; rename the file")
                       .arg(path.path, match.captured()));
        }
    }
}

// The names that a device reads in the folder, as wildcards.
void checkFolder(const QString& folder, const QStringList& expected, const Report& report)
{
    const QStringList notes{QStringLiteral("README*"), QStringLiteral("LICEN?E*"), QStringLiteral("*.md"),
                            QStringLiteral("*.txt")};
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
        if (QDir::match(expected + notes, file.fileName()))
            continue;
        const QString advice = Suggestions(expected).advice(
            file.fileName(), QStringLiteral("rename it to %1 or remove it").arg(expected.join(QStringLiteral(" or "))));
        report({file.filePath()}, QStringLiteral("a device does not read this file; %1").arg(advice));
    }
}

void checkUnknown(const Project& project, const Report& report)
{
    const ResourceFormat::Directory& directory = project.resources.directory;
    checkFolder(directory.path(),
                {QFileInfo(directory.colorFile()).fileName(), QFileInfo(directory.fontFile()).fileName()}, report);
    checkFolder(directory.dimensionFolder(), {QStringLiteral("*.ini")}, report);
    checkFolder(directory.textFolder(), {QStringLiteral("*.json")}, report);
}

} // namespace

QVector<Rule> fileTreeRules()
{
    return {
        {QStringLiteral("file-link"), Severity::Error,
         QStringLiteral("A link to something outside of the resource directory leads nowhere on a device."),
         forEachEntry(checkLink),
         QStringLiteral("Copy the file into the directory. Links within the directory are fine.")},
        {QStringLiteral("file-mode"), Severity::Warning,
         QStringLiteral("If the service runs as another user, it cannot read the file."), forEachEntry(checkMode),
         QStringLiteral("Let other users read files (`chmod o+r`) and enter directories (`chmod o+rx`). "
                        "The rule needs a resource directory that others can enter.")},
        {QStringLiteral("file-unknown"), Severity::Warning, QStringLiteral("A device does not read the file."),
         checkUnknown,
         QStringLiteral("Correct the name of the file or remove it. Hidden files, `README`, `LICENSE`, `*.md` and "
                        "`*.txt` are not reported.")},
        {QStringLiteral("icon-name"), Severity::Error,
         QStringLiteral("QML gets a file URL that is not encoded, so it does not find the file and shows no icon."),
         checkIconNames, QStringLiteral("Rename the file: `#`, `?` and `%` have a meaning in URLs.")},
    };
}

} // namespace ResourceCheck
