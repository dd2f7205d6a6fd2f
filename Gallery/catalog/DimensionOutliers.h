#pragma once

#include <QHash>
#include <QMap>
#include <QPair>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Gallery
{

/// Finds the dimensions that a designer should look at. A value is remarkable if it is
///
/// - missing or not an integer,
/// - more than twice, or less than half, of what the other dimensions suggest, and more than 2 pixels away from that,
/// or
/// - smaller than on a display that is smaller in width and height, or equal in one of them. Displays where the value
/// is
///   remarkable itself do not count.
///
/// The other dimensions suggest the median of the dimension over all displays, multiplied by the growth of the display:
/// the median of its values, each divided by the median of that dimension.
class DimensionOutliers
{
public:
    /// Values as written in the file, by `group/key`.
    using Values = QMap<QString, QString>;

    DimensionOutliers() = default;

    /// The displays with their values, ascending.
    explicit DimensionOutliers(const QVector<QPair<QSize, Values>>& displays);

    /// What is remarkable about a dimension on the display with this index, in a few words; null if nothing is.
    QString remark(int display, const QString& name) const;

private:
    struct Display {
        QString name;
        QSize size;
        Values written;
        QHash<QString, int> pixels; // without values that are not integers
        double growth = 1;
    };

    static double median(QVector<double> numbers);
    void findMedians();
    void findGrowth(Display& display) const;
    QString smallerThan(const Display& display, const QString& name) const;
    QString unlikeOthers(const Display& display, const QString& name) const;

    QVector<Display> all;
    QHash<QString, double> medians; // by name; only positive ones
};

} // namespace Gallery
