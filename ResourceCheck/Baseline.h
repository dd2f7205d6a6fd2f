#pragma once

#include "ResourceCheck/Finding.h"

#include <QMap>
#include <QVector>

namespace ResourceCheck
{

/// The findings that are accepted because they are older than the checks. A file lists them, one per line:
/// `FINGERPRINT RULE PATH`.
class Baseline
{
public:
    /// Returns why the file cannot be read and what to do; null if it can.
    QString read(const QString& path);

    /// Replaces the file by the list of all findings. Returns why that is not possible; null if it is.
    static QString write(const QString& path, const QVector<Finding>& findings);

    /// Marks the findings that the file lists.
    void accept(QVector<Finding>& findings);

    /// The lines of findings that accept() has not found: they are repaired.
    QStringList repaired() const { return entries.values(); }

private:
    QMap<QString, QString> entries; // lines by fingerprints
};

} // namespace ResourceCheck
