#include "ResourceCheck/Project.h"
#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/rules/Rule.h"

#include <QDir>
#include <QSet>

#include <algorithm>

namespace ResourceCheck
{

namespace
{

void checkInside(const Project& project, const Report& report)
{
    for (const IconPath& path : project.resources.iconPaths()) {
        if (IconDirectory::isOutside(path.path)) {
            report(path.place,
                   QStringLiteral("\"%1\" is outside the icon directory; move the file into it").arg(path.path));
        }
    }
}

// Those inside the icon directory where there is no file.
QVector<IconPath> pathsWithoutFile(const Project& project)
{
    const IconDirectory& icons = project.resources.icons;
    QVector<IconPath> missing;
    for (const IconPath& path : project.resources.iconPaths()) {
        if (!IconDirectory::isOutside(path.path) && !icons.contains(path.path))
            missing.append(path);
    }
    return missing;
}

void checkExistence(const Project& project, const Report& report)
{
    const IconDirectory& icons = project.resources.icons;
    const Suggestions suggestions(icons.files());
    for (const IconPath& path : pathsWithoutFile(project)) {
        if (!icons.pathInAnyCase(path.path).isNull())
            continue; // checkCase() reports it
        const bool exists = icons.file(path.path).exists();
        const QString fault = exists ? QStringLiteral("is not a file") : QStringLiteral("does not exist");
        report(path.place,
               QStringLiteral("\"%1\" %2; %3")
                   .arg(path.path, fault,
                        suggestions.advice(path.path, QStringLiteral("add the file or correct the path"))));
    }
}

void checkCase(const Project& project, const Report& report)
{
    for (const IconPath& path : pathsWithoutFile(project)) {
        const QString other = project.resources.icons.pathInAnyCase(path.path);
        if (!other.isNull()) {
            report(path.place,
                   QStringLiteral("\"%1\" does not exist, but \"%2\" does; use the same upper and lower case")
                       .arg(path.path, other));
        }
    }
}

// The files that the tables list, in any case of letters, or that listed links lead to.
QSet<QString> listedFiles(const Project& project)
{
    const IconDirectory& icons = project.resources.icons;
    QSet<QString> listed;
    for (const IconPath& path : project.resources.iconPaths()) {
        const QFileInfo file = icons.file(path.path);
        const QFileInfo existing = file.exists() ? file : icons.file(icons.pathInAnyCase(path.path));
        listed.insert(existing.canonicalFilePath());
    }
    return listed;
}

void checkUnused(const Project& project, const Report& report)
{
    const QVector<IconTable>& tables = project.resources.iconTables;
    if (!std::all_of(tables.begin(), tables.end(), [](const IconTable& table) { return table.file.isSound(); }))
        return;
    QSet<QString> used = listedFiles(project);
    for (const IconTable& table : tables)
        used.insert(QFileInfo(table.file.path()).canonicalFilePath());
    const IconDirectory& icons = project.resources.icons;
    const QDir directory(QFileInfo(icons.path()).canonicalFilePath());
    for (const QString& path : icons.files()) {
        const QFileInfo file = icons.file(path);
        if (!used.contains(directory.filePath(path)) && !file.isSymLink())
            report({file.filePath()}, QStringLiteral("no mapping table lists the file; add it to one or remove it"));
    }
}

} // namespace

QVector<Rule> iconFileRules()
{
    return {
        {QStringLiteral("icon-missing-file"), Severity::Error,
         QStringLiteral("An icon whose file does not exist is not shown."), checkExistence,
         QStringLiteral("Add the file or correct the path, which is relative to `icons/`.")},
        {QStringLiteral("icon-outside"), Severity::Error,
         QStringLiteral("Only files inside the icon directory are installed on the device with it."), checkInside,
         QStringLiteral(
             "Move the file into `icons/` and write its path without `..` and without `/` at its beginning.")},
        {QStringLiteral("icon-case"), Severity::Error,
         QStringLiteral("File names are case-sensitive: the icon is not shown."), checkCase,
         QStringLiteral("Write the path in the upper and lower case of the file: `day/home.svg`, not `day/Home.svg`.")},
        {QStringLiteral("icon-unused-file"), Severity::Warning,
         QStringLiteral("The file takes up space on the device and is never shown."), checkUnused,
         QStringLiteral("Add the file to a mapping table or remove it.")},
    };
}

} // namespace ResourceCheck
