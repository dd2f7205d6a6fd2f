#pragma once

#include "ResourceCheck/Finding.h"

#include <QHash>
#include <QStringList>

namespace ResourceCheck
{

/// Reads the lines that findings are about. Each file is read once.
class SourceLines
{
public:
    /// Null if the finding is about a whole file, or if the line cannot be read.
    QString line(const Place& place);

    /// Identifies the finding by its rule, file and line of text, so that it stays the same if the line moves. Findings
    /// with the same identity are numbered: call this once for each of them, in their order.
    QString fingerprint(const Finding& finding);

private:
    QHash<QString, QStringList> files; // lines by paths
    QHash<QString, int> counts;        // of the findings with the same identity
};

} // namespace ResourceCheck
