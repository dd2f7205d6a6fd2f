#pragma once

#include "ResourceCheck/Finding.h"
#include "ResourceFormat/IniParser.h"

#include <QStringList>

using ResourceFormat::IniEntry;
using ResourceFormat::IniParser;

/// An INI file as the platform's reader understands it, with the places of what it holds.
class IniFile
{
public:
    /// A file that cannot be read is like an empty one, with a problem.
    explicit IniFile(const QString& path);

    const QString& path() const { return filePath; }

    /// Why the file cannot be read; null if it can.
    const QString& problem() const { return readProblem; }

    const IniParser& content() const { return parser; }

    /// The entries that count: of a key given again in its group, the last.
    QVector<IniEntry> effectiveEntries() const;

    /// The first text of the line.
    Place place(int line) const;
    Place valuePlace(const IniEntry& entry) const;

    /// What stands behind the "=", quotes included, without the blanks around it.
    QString writtenValue(const IniEntry& entry) const;

private:
    QString filePath;
    QString readProblem;
    QStringList lines;
    IniParser parser;
};
