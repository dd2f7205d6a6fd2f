#pragma once

#include <QString>

namespace ResourceCheck::SvgImage
{

/// What is wrong with an image that is embedded as `data:` URL, and what to do; null if Qt can show it.
QString fault(const QString& url);

} // namespace ResourceCheck::SvgImage
