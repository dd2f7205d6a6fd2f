#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QFontDatabase>

#include <cmath>

namespace
{

const QString familyKey = QStringLiteral("Family");
constexpr double leastPixels = 9;

void checkFamilyIsGiven(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    for (const QString& group : file.content().groups()) {
        const QStringList keys = file.content().keys(group);
        if (!keys.isEmpty() && !keys.contains(familyKey)) {
            report(file.place(file.content().find(group, keys.constFirst())->line),
                   QStringLiteral("font group \"%1\" has sizes but no Family").arg(group));
        }
    }
}

void checkFamilyIsInstalled(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    const QStringList installed = QFontDatabase().families();
    for (const IniEntry& entry : file.effectiveEntries()) {
        if (entry.key == familyKey && !installed.contains(entry.value, Qt::CaseInsensitive))
            report(file.valuePlace(entry), QStringLiteral("\"%1\" is not installed here").arg(entry.value));
    }
}

template <typename Check>
void forEachSize(const IniFile& file, const Check& check)
{
    for (const IniEntry& entry : file.effectiveEntries()) {
        if (entry.key != familyKey) {
            bool isNumber = false;
            const double pixels = entry.value.toDouble(&isNumber);
            check(entry, pixels, isNumber && std::isfinite(pixels) && pixels > 0);
        }
    }
}

void checkSizes(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    forEachSize(file, [&](const IniEntry& entry, double, bool isSize) {
        if (!isSize) {
            report(file.valuePlace(entry),
                   QStringLiteral("\"%1\" is no size: a number of pixels above zero").arg(entry.value));
        }
    });
}

void checkSizesAreLegible(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.fonts;
    forEachSize(file, [&](const IniEntry& entry, double pixels, bool isSize) {
        if (isSize && pixels < leastPixels) {
            report(file.valuePlace(entry),
                   QStringLiteral("%1 pixels are hard to read; %2 or more are wanted").arg(pixels).arg(leastPixels));
        }
    });
}

} // namespace

QVector<Rule> fontRules()
{
    return {
        {QStringLiteral("font-family-missing"), Severity::Error,
         QStringLiteral("A group without its family is drawn in whatever font the system takes."), checkFamilyIsGiven},
        {QStringLiteral("font-family-not-installed"), Severity::Warning,
         QStringLiteral("Qt replaces a family that is not installed by another one."), checkFamilyIsInstalled},
        {QStringLiteral("font-size-invalid"), Severity::Error,
         QStringLiteral("Qt refuses a size that is not above zero, and the text keeps its default size."), checkSizes},
        {QStringLiteral("font-too-small"), Severity::Warning,
         QStringLiteral("Letters of fewer than 9 pixels lose their shapes."), checkSizesAreLegible},
    };
}
