#include "ResourceCheck/reading/ResourceKind.h"

namespace ResourceCheck
{

QString kindName(ResourceKind kind)
{
    switch (kind) {
    case ResourceKind::Color:
        return QStringLiteral("color");
    case ResourceKind::FontGroup:
        return QStringLiteral("font group");
    case ResourceKind::FontSize:
        return QStringLiteral("font size");
    case ResourceKind::Dimension:
        return QStringLiteral("dimension");
    case ResourceKind::Icon:
        return QStringLiteral("icon");
    case ResourceKind::IconContext:
        return QStringLiteral("icon context");
    case ResourceKind::Text:
        return QStringLiteral("text");
    }
    Q_UNREACHABLE();
}

} // namespace ResourceCheck
