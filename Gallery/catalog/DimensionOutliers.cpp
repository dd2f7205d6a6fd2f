#include "Gallery/catalog/DimensionOutliers.h"

#include "ResourceFormat/DisplaySize.h"

#include <algorithm>
#include <cmath>

namespace Gallery
{

namespace
{

constexpr double mostTimes = 2;     // the suggested value or its inverse
constexpr double roundingError = 2; // in pixels

} // namespace

DimensionOutliers::DimensionOutliers(const QVector<QPair<QSize, Values>>& displays)
{
    for (const auto& [size, values] : displays) {
        Display display{ResourceFormat::DisplaySize::toName(size), size, values, {}};
        for (auto value = values.begin(); value != values.end(); ++value) {
            bool isInteger = false;
            const int number = value->toInt(&isInteger);
            if (isInteger)
                display.pixels.insert(value.key(), number);
        }
        all.append(display);
    }
    findMedians();
    for (Display& display : all)
        findGrowth(display);
}

QString DimensionOutliers::remark(int display, const QString& name) const
{
    const Display& shown = all.at(display);
    if (!shown.written.contains(name))
        return QStringLiteral("missing");
    if (!shown.pixels.contains(name))
        return QStringLiteral("not an integer, counts as 0");
    const QString unlike = unlikeOthers(shown, name);
    return unlike.isNull() ? smallerThan(shown, name) : unlike;
}

// Of an even count the lower one of the two in the middle: an existing value.
double DimensionOutliers::median(QVector<double> numbers)
{
    const auto middle = numbers.begin() + (numbers.size() - 1) / 2;
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

void DimensionOutliers::findMedians()
{
    QHash<QString, QVector<double>> values;
    for (const Display& display : qAsConst(all)) {
        for (auto value = display.pixels.begin(); value != display.pixels.end(); ++value)
            values[value.key()].append(*value);
    }
    for (auto value = values.begin(); value != values.end(); ++value) {
        const double middle = median(*value);
        if (middle > 0)
            medians.insert(value.key(), middle);
    }
}

void DimensionOutliers::findGrowth(Display& display) const
{
    QVector<double> ratios;
    for (auto value = display.pixels.begin(); value != display.pixels.end(); ++value) {
        if (medians.contains(value.key()))
            ratios.append(*value / medians.value(value.key()));
    }
    if (!ratios.isEmpty())
        display.growth = median(ratios);
}

QString DimensionOutliers::smallerThan(const Display& display, const QString& name) const
{
    const int pixels = display.pixels.value(name);
    for (const Display& other : all) {
        const bool isSmaller = other.size != display.size && other.size.boundedTo(display.size) == other.size;
        if (isSmaller && other.pixels.value(name) > pixels && unlikeOthers(other, name).isNull())
            return QStringLiteral("smaller than %1 on %2").arg(other.pixels.value(name)).arg(other.name);
    }
    return QString();
}

QString DimensionOutliers::unlikeOthers(const Display& display, const QString& name) const
{
    const int pixels = display.pixels.value(name);
    const double suggested = medians.value(name) * display.growth;
    if (suggested <= 0 || std::abs(pixels - suggested) <= roundingError)
        return QString();
    const QString others = QStringLiteral("the others suggest about %1").arg(std::round(suggested));
    if (pixels > suggested * mostTimes)
        return QStringLiteral("large: ") + others;
    return pixels * mostTimes < suggested ? QStringLiteral("small: ") + others : QString();
}

} // namespace Gallery
