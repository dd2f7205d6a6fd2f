#pragma once

#include "ResourceCheck/reading/Place.h"
#include "ResourceFormat/IniParser.h"

#include <QStringList>

namespace ResourceCheck
{

/// An INI file as the platform's reader understands it, with the places of its content.
class IniFile
{
public:
    /// A file that cannot be read has no content and a problem.
    explicit IniFile(const QString& path);

    const QString& path() const { return filePath; }

    /// Why the file cannot be read; null if it can.
    const QString& problem() const { return readProblem; }

    const ResourceFormat::IniParser& content() const { return parser; }

    /// The entries that count: the last one of duplicate keys.
    QVector<ResourceFormat::IniEntry> effectiveEntries() const;

    /// Where the text of the line begins.
    Place place(int line) const;
    Place valuePlace(const ResourceFormat::IniEntry& entry) const;

    /// The text after the "=", including quotes, without the blanks around it.
    QString writtenValue(const ResourceFormat::IniEntry& entry) const;

private:
    QString filePath;
    QString readProblem;
    QStringList lines;
    ResourceFormat::IniParser parser;
};

} // namespace ResourceCheck
