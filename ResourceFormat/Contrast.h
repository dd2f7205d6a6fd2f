#pragma once

#include <QColor>
#include <QString>

/// How well text can be read on its background, by WCAG 2.1.
namespace ResourceFormat::Contrast
{

constexpr double minimumAA = 4.5;      ///< Level AA; also level AAA of large text.
constexpr double minimumAAOfLarge = 3; ///< Level AA of large text: at least 24 pixels, or 18.66 pixels in bold.
constexpr double minimumAAA = 7;       ///< Level AAA.

/// The contrast ratio, from 1 to 21. A transparent text color is blended with the background, a transparent background
/// with what is behind it, and that with white.
double ratio(const QColor& text, const QColor& background, const QColor& behind = Qt::white);

/// The ratio with two decimals, such as `4.49:1`. Rounded down, so that it does not seem to reach a minimum.
QString text(double ratio);

/// The key of the color that is behind the other colors of its group, by convention.
QString backgroundKey();

/// The key of the background that a text color of the same group is shown on, by convention: the key `TextOnNAME` on
/// `NAME`, any other one that starts with `Text` on backgroundKey(). Empty if the key is not that of a text, or ends
/// with `Disabled`: disabled text may be hard to read.
QString backgroundKeyOf(const QString& key);

} // namespace ResourceFormat::Contrast
