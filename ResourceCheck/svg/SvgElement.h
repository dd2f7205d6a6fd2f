#pragma once

#include "ResourceCheck/svg/SvgVocabulary.h"

#include <QXmlStreamAttributes>

namespace ResourceCheck
{

/// The start of an element.
struct SvgElement {
    QString attribute(const char* attributeName) const
    {
        return attributes.value(QLatin1String(attributeName)).toString();
    }

    /// The attribute that refers to another element or file.
    QString link() const
    {
        const QString link = attribute("xlink:href");
        return link.isEmpty() && role == SvgVocabulary::Role::Use ? attribute("href") : link;
    }

    /// Whether it refers to another file.
    bool isExternal() const { return !link().isEmpty() && !link().startsWith(QLatin1Char('#')); }

    /// The ID of the element that it refers to; empty if there is none.
    QString linkedId() const { return isExternal() ? QString() : link().mid(1); }

    QString name;
    SvgVocabulary::Role role;
    QXmlStreamAttributes attributes;
    qint64 offset; // in characters, behind the element
};

} // namespace ResourceCheck
