#pragma once

#include <private/qqmljsast_p.h>

namespace ResourceCheck
{

#if QT_VERSION_MAJOR < 6

/// Whether the declaration begins with `required`.
inline bool isRequired(const QQmlJS::AST::UiPublicMember& member)
{
    return member.isRequired;
}

/// Whether the declaration begins with `readonly`.
inline bool isReadonly(const QQmlJS::AST::UiPublicMember& member)
{
    return member.isReadonlyMember;
}

#else

/// Whether the declaration begins with `required`.
inline bool isRequired(const QQmlJS::AST::UiPublicMember& member)
{
    return member.isRequired();
}

/// Whether the declaration begins with `readonly`.
inline bool isReadonly(const QQmlJS::AST::UiPublicMember& member)
{
    return member.isReadonly();
}

#endif

} // namespace ResourceCheck
