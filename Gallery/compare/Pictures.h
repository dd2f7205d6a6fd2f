#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// Pictures of single resources, drawn without a display.
namespace Gallery::Pictures
{

/// Pixels of a font sample per pixel of the font.
constexpr int sampleScale = 2;

/// The icon, as large as fits into a square of this many pixels; null if the file is not an image. `size` is the own
/// size of the icon.
QImage icon(const QString& path, int pixels, QSize& size);

/// Whether the visible pixels are light in the mean, so that the icon needs a dark background.
bool isLight(const QImage& icon);

/// Some letters and digits in the font, dark on white.
QImage fontSample(const QString& family, double pixels);

/// The font family that is drawn for this one: itself if it is installed.
QString usedFamily(const QString& family);

} // namespace Gallery::Pictures
