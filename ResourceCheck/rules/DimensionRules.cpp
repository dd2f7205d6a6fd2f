#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QHash>
#include <QMap>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

QVector<DimensionFile> readableDisplays(const Resources& resources)
{
    QVector<DimensionFile> displays;
    for (const DimensionFile& dimension : resources.dimensions) {
        if (dimension.size.isValid() && dimension.file.problem().isNull())
            displays.append(dimension);
    }
    return displays;
}

// Where a key of the group belongs: at the group if it exists, otherwise anywhere in the file.
Place placeOfGroup(const IniFile& file, const QString& group)
{
    const QStringList keys = file.content().keys(group);
    return keys.isEmpty() ? Place{file.path()} : file.place(file.content().find(group, keys.constFirst())->line);
}

void checkKeysAreInAll(const Project& project, const Report& report)
{
    const QVector<DimensionFile> displays = readableDisplays(project.resources);
    QMap<QPair<QString, QString>, QString> owners; // the first file that has the key
    for (const DimensionFile& display : displays) {
        for (const IniEntry& entry : display.file.content().entries()) {
            const QPair<QString, QString> name(entry.group, entry.key);
            if (!owners.contains(name))
                owners.insert(name, display.file.path());
        }
    }
    for (const DimensionFile& display : displays) {
        for (auto owner = owners.constBegin(); owner != owners.constEnd(); ++owner) {
            const auto& [group, key] = owner.key();
            if (display.file.content().find(group, key) == nullptr) {
                report(placeOfGroup(display.file, group),
                       QStringLiteral("%1/%2 is missing, but %3 has it; add it").arg(group, key, owner.value()));
            }
        }
    }
}

void checkIntegers(const Project& project, const Report& report)
{
    for (const DimensionFile& dimension : project.resources.dimensions) {
        for (const IniEntry& entry : dimension.file.effectiveEntries()) {
            bool isInteger = false;
            entry.value.toInt(&isInteger);
            if (!isInteger) {
                report(dimension.file.valuePlace(entry),
                       QStringLiteral("\"%1\" is not an integer, so %2/%3 is 0; use a whole number of pixels")
                           .arg(entry.value, entry.group, entry.key));
            }
        }
    }
}

void checkNames(const Project& project, const Report& report)
{
    for (const DimensionFile& dimension : project.resources.dimensions) {
        if (!dimension.size.isValid()) {
            report({dimension.file.path()},
                   QStringLiteral("the file name is not a display size; rename the file to WIDTHxHEIGHT.ini"));
        }
    }
}

void checkSizesDiffer(const Project& project, const Report& report)
{
    QHash<QPair<int, int>, QString> paths;
    for (const DimensionFile& dimension : project.resources.dimensions) {
        const QPair<int, int> size(dimension.size.width(), dimension.size.height());
        if (dimension.size.isValid() && paths.contains(size)) {
            report({dimension.file.path()},
                   QStringLiteral("%1 has the same display size; remove one of the two files").arg(paths.value(size)));
        }
        paths.insert(size, dimension.file.path());
    }
}

void checkNamesAreUnique(const Project& project, const Report& report)
{
    for (const DimensionFile& dimension : project.resources.dimensions) {
        QHash<QString, IniEntry> entries;
        for (const IniEntry& entry : dimension.file.effectiveEntries()) {
            const QString name = entry.group + QLatin1Char('/') + entry.key;
            if (entries.contains(name)) {
                report(dimension.file.place(entry.line),
                       QStringLiteral("\"%1\" in group \"%2\" has the name %3, as line %4 has; rename one of them")
                           .arg(entry.key, entry.group, name, QString::number(entries.value(name).line)));
            }
            entries.insert(name, entry);
        }
    }
}

} // namespace

QVector<Rule> dimensionRules()
{
    return {
        {QStringLiteral("dimension-missing"), Severity::Error,
         QStringLiteral("On a display without the key QML reads undefined and cannot lay out the element."),
         checkKeysAreInAll, QStringLiteral("Files are not combined. Add the key to the file of each display.")},
        {QStringLiteral("dimension-not-integer"), Severity::Error,
         QStringLiteral("A value that is not an integer counts as 0, and the element disappears."), checkIntegers,
         QStringLiteral("Write a whole number of pixels, without a unit: `248`, not `248px`.")},
        {QStringLiteral("dimension-ambiguous"), Severity::Error,
         QStringLiteral("QML finds a dimension as `Group/key`, so one of two equal names hides the other."),
         checkNamesAreUnique,
         QStringLiteral("Write no `/` in groups and keys: `b/c` in `[a]` and `c` in `[a/b]` are both `a/b/c`.")},
        {QStringLiteral("dimension-name"), Severity::Error,
         QStringLiteral("If a file name is not a display size, the service leaves the file out."), checkNames,
         QStringLiteral("Name the file after the display, for example `800x480.ini`.")},
        {QStringLiteral("display-duplicate"), Severity::Error,
         QStringLiteral("Only one of two files for the same display size is ever used."), checkSizesDiffer,
         QStringLiteral("Remove one of the two files, for example `800x480.INI` beside `800x480.ini`.")},
    };
}

} // namespace ResourceCheck
