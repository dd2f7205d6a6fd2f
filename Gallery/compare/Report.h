#pragma once

#include "Gallery/compare/Comparison.h"
#include "Gallery/compare/ScreenComparison.h"
#include "Gallery/compare/ValuePicture.h"

namespace Gallery
{

/// A comparison as one HTML file, which needs neither other files nor JavaScript.
class Report
{
public:
    /// The names are shown as those of the two directories. The comparisons must outlive the report.
    Report(const Comparison& resourceComparison, const ScreenComparison& screenComparison, const QString& oldDirectory,
           const QString& newDirectory);

    QByteArray html() const;

private:
    QString summary() const;
    QString problems() const;
    QString section(Snapshot::Kind kind) const;
    QString table(const QVector<Comparison::Change>& changes) const;
    QString row(const Comparison::Change& change) const;

    const Comparison& comparison;
    const ScreenComparison& screens;
    const QString oldName;
    const QString newName;
    const ValuePicture picture;
};

} // namespace Gallery
