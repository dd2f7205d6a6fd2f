#pragma once

#include <QSize>
#include <QString>

/// Names of display sizes, as in `dimensions/800x480.ini`.
namespace ResourceFormat::DisplaySize
{

/// The size in pixels that a name such as `800x480` describes. Both numbers are positive, decimal, without leading
/// zeros and of at most nine digits; for any other name the size is invalid.
QSize fromName(const QString& name);

/// The name of a valid size in pixels.
QString toName(const QSize& size);

} // namespace ResourceFormat::DisplaySize
