#pragma once

#include "ResourceCheck/svg/SvgFault.h"

#include <QSet>
#include <QVector>

namespace ResourceCheck
{

/// Collects the faults of one SVG file.
class SvgFaults
{
public:
    /// `offset` is that of SvgFault.
    void add(SvgFault::Kind kind, qint64 offset, const QString& message);

    /// Does nothing if the kind has been added with the key before, so that a file full of the same fault gets one
    /// finding.
    void addOnce(SvgFault::Kind kind, qint64 offset, const QString& key, const QString& message);

    void append(const QVector<SvgFault>& faults) { list += faults; }

    /// The faults in the order of the file, with the places where the elements begin.
    QVector<SvgFault> located(const QString& path, const QByteArray& content) const;

private:
    QVector<SvgFault> list;
    QSet<QString> keys;
};

} // namespace ResourceCheck
