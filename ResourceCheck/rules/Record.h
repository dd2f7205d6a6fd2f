#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace ResourceCheck
{

/// A log record that a device can write because of its resources or of a name in QML. `--list-records` and the table in
/// docs/resource-formats.md are made of these entries.
struct Record {
    QString origin;    // who writes it
    QString text;      // "…" stands for any text
    QStringList rules; // that announce it; empty if no rule can
    QString reason{};  // why no rule can

    /// A regular expression for the texts of the record.
    QString pattern() const;
};

/// All records, as in docs/log-records.md.
const QVector<Record>& allRecords();

} // namespace ResourceCheck
