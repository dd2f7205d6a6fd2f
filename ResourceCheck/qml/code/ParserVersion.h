#pragma once

#include <private/qqmljsast_p.h>

namespace ResourceCheck
{

/// Whether the declaration begins with `required`.
inline bool isRequired(const QQmlJS::AST::UiPublicMember& member)
{
#if QT_VERSION_MAJOR < 6
    return member.isRequired;
#else
    return member.isRequired();
#endif
}

} // namespace ResourceCheck
