#pragma once

#include "ResourceCheck/Finding.h"

#include <QHash>
#include <QStringList>
#include <QVector>

namespace ResourceCheck
{

/// Reads the lines that findings are about. Each file is read once.
class SourceLines
{
public:
    /// Null if the finding is about a whole file, or if the line cannot be read.
    QString line(const Place& place);

private:
    QHash<QString, QStringList> files; // lines by paths
};

/// Identifies each finding by its rule, file and line of text, so that it stays the same if the line moves. Findings in
/// equal lines are numbered. The file is known by its path from the checked directory, however that is written.
void addFingerprints(QVector<Finding>& findings, const QString& directory);

} // namespace ResourceCheck
