#include "ResourceCheck/Suggestions.h"

namespace ResourceCheck
{

Suggestions::Suggestions(const QStringList& knownNames)
    : names(knownNames)
{
}

QString Suggestions::similarName(const QString& name) const
{
    for (const QString& one : names) {
        if (one.compare(name, Qt::CaseInsensitive) == 0)
            return one;
    }
    if (!index)
        index.emplace(names);
    const QString nearest = index->nearest(QmlPattern::literal(name));
    return names.contains(nearest) ? nearest : QString();
}

QString Suggestions::advice(const QString& name, const QString& otherwise) const
{
    const QString similar = similarName(name);
    return similar.isNull() ? otherwise : QStringLiteral("did you mean \"%1\"?").arg(similar);
}

} // namespace ResourceCheck
