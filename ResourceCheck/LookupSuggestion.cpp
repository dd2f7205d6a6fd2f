#include "ResourceCheck/LookupSuggestion.h"

#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/reading/ResourceNames.h"

namespace ResourceCheck
{

namespace
{

QString similarName(const Resources& resources, ResourceKind kind, const QString& name)
{
    const QStringList names = ResourceNames(resources, kind).names();
    return names.contains(name) ? QString() : Suggestions(names).similarName(name);
}

} // namespace

QString lookupSuggestion(const Resources& resources, const QStringList& question)
{
    const QString& kind = question.at(0);
    const QString names = question.mid(1).join(QLatin1Char('/'));
    if (kind == QLatin1String("color"))
        return similarName(resources, ResourceKind::Color, names);
    if (kind == QLatin1String("font")) {
        const bool hasSize = question.size() > 2;
        return similarName(resources, hasSize ? ResourceKind::FontSize : ResourceKind::FontGroup, names);
    }
    if (kind == QLatin1String("dimension"))
        return similarName(resources, ResourceKind::Dimension, question.value(2));
    if (kind == QLatin1String("icon"))
        return similarName(resources, ResourceKind::Icon, question.at(1));
    return similarName(resources, ResourceKind::Text, question.at(1));
}

} // namespace ResourceCheck
