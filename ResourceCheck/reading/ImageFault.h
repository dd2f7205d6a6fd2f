#pragma once

#include <QByteArray>
#include <QString>

namespace ResourceCheck
{

/// Why the content of an image file cannot be displayed as what the suffix says, which is in lower case, and what to
/// do; null if it can.
QString imageFault(const QByteArray& content, const QByteArray& suffix);

} // namespace ResourceCheck
