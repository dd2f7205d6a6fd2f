#pragma once

#include <QSizeF>
#include <QXmlStreamAttributes>

#include <optional>

namespace ResourceCheck::SvgSize
{

/// The size in pixels that Qt gives to a picture with these attributes of its root element; nothing if it depends on
/// the content.
std::optional<QSizeF> of(const QXmlStreamAttributes& attributes);

} // namespace ResourceCheck::SvgSize
