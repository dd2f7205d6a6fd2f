#pragma once

#include "ResourceCheck/fix/LineEdit.h"

#include <QMap>
#include <QStringList>

namespace ResourceCheck
{

/// Changes of lines of one file. Everything else in the file stays as it is, byte by byte.
class Patch
{
public:
    /// Reads the file. A link, or a file that is not valid UTF-8 text without byte-order mark, cannot be changed.
    explicit Patch(const QString& path);

    bool canChange() const { return isText; }

    /// Whether no line break follows the line.
    bool isLast(int number) const { return number == lines.size(); }

    /// The text of a line, with a carriage return at its end if it has one. Shows what earlier edits have changed.
    QString line(int number) const;

    /// Of two edits of a line the later one counts. Nothing can be edited in a removed line.
    void add(const LineEdit& edit);

    /// The changes as a unified diff without context.
    QByteArray diff() const;

    /// Replaces the file at once and keeps its mode. Returns why that is not possible; null if it is.
    QString apply() const;

private:
    QString filePath;
    bool isText;
    QStringList lines;
    QMap<int, LineEdit> edits; // by lines
};

} // namespace ResourceCheck
