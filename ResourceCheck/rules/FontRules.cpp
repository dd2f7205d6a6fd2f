#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/QtVersion.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <cmath>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

constexpr double minimumPixels = 9;

void checkFamilyIsGiven(const Project& project, const Report& report)
{
    const QString& familyKey = TarnisFontHandler::familyKey;
    const IniFile& file = project.resources.fonts;
    for (const QString& group : file.content().groups()) {
        const QStringList keys = file.content().keys(group);
        if (!keys.isEmpty() && !keys.contains(familyKey)) {
            report(file.place(file.content().find(group, keys.constFirst())->line),
                   QStringLiteral("the font group \"%1\" has no %2; add %2=NAME").arg(group, familyKey));
        }
    }
}

void checkFamilyIsInstalled(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    const QStringList installed = ResourceFormat::QtVersion::fontFamilies();
    for (const IniEntry& entry : file.effectiveEntries()) {
        if (entry.key == TarnisFontHandler::familyKey && !installed.contains(entry.value, Qt::CaseInsensitive)) {
            report(file.valuePlace(entry),
                   QStringLiteral("the font family \"%1\" is not installed here; install it or use another one")
                       .arg(entry.value));
        }
    }
}

// The number of pixels; not a number if the value is not a font size.
double pixelsOf(const IniEntry& entry)
{
    bool isNumber = false;
    const double pixels = entry.value.toDouble(&isNumber);
    return isNumber && std::isfinite(pixels) && pixels > 0 ? pixels : qQNaN();
}

QVector<IniEntry> sizesIn(const IniFile& file)
{
    QVector<IniEntry> sizes;
    for (const IniEntry& entry : file.effectiveEntries()) {
        if (entry.key != TarnisFontHandler::familyKey)
            sizes.append(entry);
    }
    return sizes;
}

void checkSizes(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    for (const IniEntry& entry : sizesIn(file)) {
        if (std::isnan(pixelsOf(entry))) {
            report(file.valuePlace(entry),
                   QStringLiteral("\"%1\" is not a font size; use a number of pixels above 0").arg(entry.value));
        }
    }
}

void checkSizesAreLegible(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    for (const IniEntry& entry : sizesIn(file)) {
        const double pixels = pixelsOf(entry);
        if (pixels < minimumPixels) {
            report(file.valuePlace(entry),
                   QStringLiteral("a font size of %1 px is hard to read; use at least %2 px")
                       .arg(QString::number(pixels), QString::number(minimumPixels)));
        }
    }
}

void checkGroupsHaveSizes(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    for (const QString& group : file.content().groups()) {
        if (file.content().keys(group) == QStringList(TarnisFontHandler::familyKey)) {
            report(file.place(file.content().find(group, TarnisFontHandler::familyKey)->line),
                   QStringLiteral("the font group \"%1\" has no size; add one, such as Normal=18").arg(group));
        }
    }
}

} // namespace

QVector<Rule> fontRules()
{
    return {
        {QStringLiteral("font-family-missing"), Severity::Error,
         QStringLiteral("Text in a font group without a family is drawn in the default font of the system."),
         checkFamilyIsGiven, QStringLiteral("Add `Family=NAME` to the group.")},
        {QStringLiteral("font-family-not-installed"), Severity::Warning,
         QStringLiteral("Qt replaces a font family that is not installed by another one."), checkFamilyIsInstalled,
         QStringLiteral("Install the family on this machine and on the device, or use another one.")},
        {QStringLiteral("font-size-missing"), Severity::Error,
         QStringLiteral("Every lookup of a size in a font group without sizes fails."), checkGroupsHaveSizes,
         QStringLiteral("Add a size in pixels, for example `Normal=18`, or remove the group.")},
        {QStringLiteral("font-size-invalid"), Severity::Error,
         QStringLiteral("Qt rejects a size that is not above 0, and the text keeps its default size."), checkSizes,
         QStringLiteral("Write a number of pixels above 0, without a unit: `18`, not `18px`.")},
        {QStringLiteral("font-too-small"), Severity::Warning,
         QStringLiteral("Letters smaller than 9 pixels lose their shapes."), checkSizesAreLegible,
         QStringLiteral("Use at least 9 pixels.")},
    };
}

} // namespace ResourceCheck
