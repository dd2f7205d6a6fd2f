#pragma once

#include <QHash>
#include <QPointer>
#include <QString>
#include <QVariant>

class QObject;

namespace Gallery
{

class FrontEnd;

/// What the user has changed in a front end since its objects were created: scroll positions, choices, texts, open
/// dialogs and properties of its own QML types. An object is found in another version of the front end by its path from
/// the root object: the ids, or the types with their number, of the objects on the way.
class FrontEndState
{
public:
    /// The state of this front end, which must outlive it.
    explicit FrontEndState(FrontEnd& ownFrontEnd);

    /// Takes the present values of the objects that have been created since the last call as their original ones.
    void observe();

    /// Makes the changes of an older version here, too. What its author has changed since wins: a property is left
    /// alone if it has a binding or another original value than in the older version.
    void restore(const FrontEndState& older);

private:
    using Values = QHash<QString, QVariant>;

    struct Original {
        QPointer<QObject> object; // null when it is deleted
        Values values;
    };

    bool restore(QObject& object, const QObject& olderObject, const Values& olderValues) const;

    FrontEnd& frontEnd;
    QHash<const QObject*, Original> originals;
};

} // namespace Gallery
