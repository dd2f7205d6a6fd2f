#pragma once

#include <QColor>

/// How well text can be read on its background, by WCAG 2.1.
namespace ResourceFormat::Contrast
{

/// The contrast ratio, from 1 to 21. A transparent text color is blended with the background, a transparent background
/// with white.
double ratio(const QColor& text, const QColor& background);

} // namespace ResourceFormat::Contrast
