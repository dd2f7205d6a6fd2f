#pragma once

#include "Gallery/compare/Comparison.h"

#include <QColor>

namespace Gallery
{

/// Shows one side of a change in HTML: as a picture, and in words.
class ValuePicture
{
public:
    /// The comparison must outlive this object.
    explicit ValuePicture(const Comparison& resourceComparison);

    /// The side of the old or the new state; a dash if there is no value.
    QString html(const Comparison::Change& change, bool isNew) const;

    /// How many pixels of a display one pixel of a dimension's bar stands for.
    int pixelsPerBarPixel() const;

private:
    QString color(const Snapshot::Value& value) const;
    QString font(const Comparison::Change& change, bool isNew) const;
    QString dimension(const Snapshot::Value& value) const;
    QString icon(const Snapshot::Value& value) const;

    const Comparison& comparison;
    int barScale = 1;
    int iconScale = 1; // pixels per CSS pixel; two are sharp on more displays, but make the file four times as large
};

} // namespace Gallery
