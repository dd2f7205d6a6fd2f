#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <algorithm>
#include <utility>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

constexpr int maximumSides = 4; // of the display

QString faultOf(int value, const QSize& display)
{
    if (value < 0)
        return QStringLiteral("is negative; use a number of pixels from 0");
    const int maximum = maximumSides * std::max(display.width(), display.height());
    if (display.isValid() && value > maximum)
        return QStringLiteral("is more than %1 times the display; use a smaller number of pixels").arg(maximumSides);
    return QString();
}

void checkValues(const Project& project, const Report& report)
{
    for (const DimensionFile& dimension : project.resources.dimensions) {
        for (const IniEntry& entry : dimension.file.effectiveEntries()) {
            bool isInteger = false;
            const QString fault = faultOf(entry.value.toInt(&isInteger), dimension.size);
            if (isInteger && !fault.isNull()) {
                report(dimension.file.valuePlace(entry), QStringLiteral("%1/%2 %3").arg(entry.group, entry.key, fault));
            }
        }
    }
}

// A margin may be 0, but something with no width or height is invisible.
void checkZero(const Project& project, const Report& report)
{
    for (const DimensionFile& dimension : project.resources.dimensions) {
        for (const IniEntry& entry : dimension.file.effectiveEntries()) {
            const QString key = entry.key.toLower();
            const bool isExtent = key.endsWith(QLatin1String("width")) || key.endsWith(QLatin1String("height"))
                || key.endsWith(QLatin1String("size"));
            bool isInteger = false;
            if (isExtent && !key.contains(QLatin1String("border")) && entry.value.toInt(&isInteger) == 0 && isInteger) {
                report(dimension.file.valuePlace(entry),
                       QStringLiteral("%1/%2 is 0, and the element is invisible; use a number above 0")
                           .arg(entry.group, entry.key));
            }
        }
    }
}

bool isSmaller(const QSize& left, const QSize& right)
{
    return left != right && left.width() <= right.width() && left.height() <= right.height();
}

// The displays, each of which is larger than the one before it.
QVector<DimensionFile> growingDisplays(QVector<DimensionFile> displays)
{
    std::sort(displays.begin(), displays.end(), [](const DimensionFile& left, const DimensionFile& right) {
        return std::pair(left.size.width(), left.size.height()) < std::pair(right.size.width(), right.size.height());
    });
    QVector<DimensionFile> chain;
    for (const DimensionFile& display : qAsConst(displays)) {
        const bool isLarger = chain.isEmpty() || isSmaller(chain.last().size, display.size);
        if (display.size.isValid() && isLarger)
            chain.append(display);
    }
    return chain;
}

// Three values that never grow are intended: more elements are side by side on a larger display.
void checkOrder(const IniEntry& entry, const QVector<DimensionFile>& displays, const Report& report)
{
    QVector<std::pair<const DimensionFile*, IniEntry>> values;
    bool isGrowing = false;
    for (const DimensionFile& display : displays) {
        const IniEntry* one = display.file.content().find(entry.group, entry.key);
        if (one == nullptr)
            continue;
        isGrowing = isGrowing || (!values.isEmpty() && one->value.toInt() > values.last().second.value.toInt());
        values.append({&display, *one});
    }
    constexpr int minimumRow = 3;
    for (int index = 1; index < values.size() && (isGrowing || values.size() < minimumRow); ++index) {
        const auto& [smaller, before] = values.at(index - 1);
        const auto& [display, value] = values.at(index);
        if (value.value.toInt() > 0 && value.value.toInt() < before.value.toInt()) {
            report(display->file.valuePlace(value),
                   QStringLiteral("%1/%2 is smaller than %3 on the smaller display of %4; correct one of them")
                       .arg(value.group, value.key, before.value, smaller->file.path()));
        }
    }
}

void checkOrders(const Project& project, const Report& report)
{
    const QVector<DimensionFile> displays = growingDisplays(project.resources.dimensions);
    if (displays.isEmpty())
        return;
    for (const IniEntry& entry : displays.first().file.effectiveEntries())
        checkOrder(entry, displays, report);
}

} // namespace

QVector<Rule> dimensionValueRules()
{
    return {
        {QStringLiteral("dimension-absurd"), Severity::Warning,
         QStringLiteral("An element with a negative or huge dimension is not where it is expected."), checkValues,
         QStringLiteral("Use a number of pixels from 0 to 4 times the longer side of the display.")},
        {QStringLiteral("dimension-zero"), Severity::Warning,
         QStringLiteral("An element without width, height or size is invisible."), checkZero,
         QStringLiteral(
             "Use a number above 0. The rule looks at keys that end with `width`, `height` or `size`, except "
             "those of borders; margins may be 0.")},
        {QStringLiteral("dimension-order"), Severity::Warning,
         QStringLiteral("An element that is smaller on a larger display is often a mistake."), checkOrders,
         QStringLiteral("Correct the value. Values that never grow over three or more displays count as intended. "
                        "Displays are compared if one is neither wider nor higher than the other.")},
    };
}

} // namespace ResourceCheck
