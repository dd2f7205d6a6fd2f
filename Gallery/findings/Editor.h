#pragma once

#include <QString>

namespace Gallery
{

/// Opens files in the program that the user has chosen.
class Editor
{
public:
    /// `commandLine` is a program with its arguments, which may contain `{file}`, `{line}` and `{column}`. The file is
    /// appended if the command does not contain `{file}`. Quotes keep blanks together; no shell is involved. An empty
    /// command is the program of the desktop.
    explicit Editor(const QString& commandLine = QString());

    /// Starts the program and does not wait for it. Lines and columns count from 1; 0 is the start. Returns why it
    /// cannot be started and what to do; null if it is started.
    QString open(const QString& path, int line, int column) const;

private:
    QString command;
};

} // namespace Gallery
