#pragma once

#include <QString>

namespace ResourceCheck
{

/// What a name can refer to.
enum class ResourceKind { Color, FontGroup, FontSize, Dimension, Icon, IconContext, Text };

/// The name of the kind in messages.
QString kindName(ResourceKind kind);

} // namespace ResourceCheck
