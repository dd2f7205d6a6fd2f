#pragma once

#include "ResourceCheck/qml/KnownNames.h"

#include <QStringList>

#include <optional>

namespace ResourceCheck
{

/// Finds what the author of an unknown name probably meant.
class Suggestions
{
public:
    explicit Suggestions(const QStringList& knownNames);

    /// The name that is most similar to the unknown one; null if all differ in more than a third of the characters.
    QString similarName(const QString& name) const;

    /// What to do: `did you mean "NAME"?`, or the other advice if no name is similar.
    QString advice(const QString& name, const QString& otherwise) const;

private:
    QStringList names;
    mutable std::optional<KnownNames> index; // made when it is needed
};

} // namespace ResourceCheck
