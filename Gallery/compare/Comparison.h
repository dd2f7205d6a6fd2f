#pragma once

#include "Gallery/compare/Snapshot.h"

#include <QMetaType>
#include <QVector>

#include <optional>

namespace Gallery
{

/// The differences between an old and a new state of a resource directory.
///
/// Values that look the same are not different: a color in another notation, or an icon in another file with the same
/// content. What one side cannot read is left out; the side names it in its problems.
class Comparison
{
public:
    enum Type { Changed, Added, Removed };

    struct Change {
        Snapshot::Kind kind;
        Snapshot::Key key;
        std::optional<Snapshot::Value> oldValue; ///< None if added.
        std::optional<Snapshot::Value> newValue; ///< None if removed.

        Type type() const;

        /// Of two numbers, in pixels and percent: `+4 px (+10 %)`; empty for other values.
        QString difference() const;
    };

    Comparison() = default;
    Comparison(const Snapshot& oldSnapshot, const Snapshot& newSnapshot);

    const Snapshot& oldSide() const;
    const Snapshot& newSide() const;

    /// Sorted by kind, name and variant; numbers in names are sorted by their value.
    const QVector<Change>& changes() const;

    QVector<Change> changes(Snapshot::Kind kind, Type type) const;

    /// What has changed, in a sentence.
    QString verdict() const;

    /// Whether both sides could be read completely.
    bool isComplete() const;

    /// All types, in the order in which people read them.
    static const QVector<Type>& types();

    /// The name of a kind, in the plural: `Colors`.
    static QString title(Snapshot::Kind kind);

    /// What the variants of a kind are: `Display`; empty if it has none.
    static QString variantTitle(Snapshot::Kind kind);

    /// `Changed`, `Added` or `Removed`.
    static QString title(Type type);

private:
    void compare(Snapshot::Kind kind);

    Snapshot oldState;
    Snapshot newState;
    QVector<Change> allChanges;
};

} // namespace Gallery

Q_DECLARE_METATYPE(Gallery::Comparison)
