#pragma once

#include "ResourceCheck/svg/SvgFault.h"

#include <QHash>
#include <QSet>
#include <QVector>

namespace ResourceCheck
{

/// The gradients and colors that a picture defines, and the references to them.
class SvgPaints
{
public:
    /// `link` is the ID of the gradient that has the stops; empty if there is none. Returns whether the ID is new.
    bool define(const QString& id, const QString& link, qint64 offset);

    /// Notes the use of a value such as `url(#id)`.
    void refer(const QString& value, qint64 offset);

    /// The references that lead nowhere or to themselves.
    QVector<SvgFault> faults() const;

private:
    struct Paint {
        QString link;
        qint64 offset = 0;
    };
    struct Reference {
        QString value;
        qint64 offset = 0;
    };

    void followLinks(const QString& id, QSet<QString>& followed, QVector<SvgFault>& found) const;

    QHash<QString, Paint> paints;
    QVector<Reference> references;
};

} // namespace ResourceCheck
