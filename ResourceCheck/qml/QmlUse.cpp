#include "ResourceCheck/qml/QmlUse.h"

namespace ResourceCheck
{

bool hasGroupArgument(ResourceKind kind)
{
    return kind == ResourceKind::Color || kind == ResourceKind::FontSize;
}

QmlPattern QmlUse::name(const QmlPattern& group, const QmlPattern& key) const
{
    return hasGroupArgument(kind) ? group + QmlPattern::literal(QStringLiteral("/")) + key : key;
}

} // namespace ResourceCheck
