#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QHash>
#include <QMap>

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

// Where the key would be looked for: at its group, if there is one.
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
                       QStringLiteral("%1/%2 is missing, which %3 has").arg(group, key, owner.value()));
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
                report(
                    dimension.file.valuePlace(entry),
                    QStringLiteral("\"%1\" is no integer: %2/%3 will be 0").arg(entry.value, entry.group, entry.key));
            }
        }
    }
}

void checkNames(const Project& project, const Report& report)
{
    for (const DimensionFile& dimension : project.resources.dimensions) {
        if (!dimension.size.isValid())
            report({dimension.file.path()}, QStringLiteral("is not named WIDTHxHEIGHT.ini"));
    }
}

void checkSizesDiffer(const Project& project, const Report& report)
{
    QHash<QPair<int, int>, QString> paths;
    for (const DimensionFile& dimension : project.resources.dimensions) {
        const QPair<int, int> size(dimension.size.width(), dimension.size.height());
        if (dimension.size.isValid() && paths.contains(size))
            report({dimension.file.path()}, QStringLiteral("is for the same display as %1").arg(paths.value(size)));
        paths.insert(size, dimension.file.path());
    }
}

} // namespace

QVector<Rule> dimensionRules()
{
    return {
        {QStringLiteral("dimension-missing"), Severity::Error,
         QStringLiteral("On the display that lacks the key QML reads undefined, and the element is not laid out."),
         checkKeysAreInAll},
        {QStringLiteral("dimension-not-integer"), Severity::Error,
         QStringLiteral("A value that is no integer counts as 0, and the element vanishes."), checkIntegers},
        {QStringLiteral("dimension-name"), Severity::Error,
         QStringLiteral("A file whose name is no display size makes the service refuse the list of all of them."),
         checkNames},
        {QStringLiteral("display-duplicate"), Severity::Error,
         QStringLiteral("Of two files for one display only one is ever used."), checkSizesDiffer},
    };
}
