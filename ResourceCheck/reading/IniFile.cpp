#include "ResourceCheck/reading/IniFile.h"

#include "ResourceFormat/RegularFile.h"

namespace ResourceCheck
{

using ResourceFormat::IniEntry;
using ResourceFormat::IniParser;

namespace
{

int firstTextIn(const QString& line, int from)
{
    int index = from;
    while (index < line.size() && line.at(index).isSpace())
        ++index;
    return index;
}

} // namespace

IniFile::IniFile(const QString& path)
    : filePath(path)
{
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, readProblem);
    lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    parser = IniParser(content);
}

QVector<IniEntry> IniFile::effectiveEntries() const
{
    QVector<IniEntry> effective;
    for (const IniEntry& entry : parser.entries()) {
        if (parser.find(entry.group, entry.key) == &entry)
            effective.append(entry);
    }
    return effective;
}

Place IniFile::place(int line) const
{
    return {filePath, line, firstTextIn(lines.value(line - 1), 0) + 1};
}

Place IniFile::valuePlace(const IniEntry& entry) const
{
    const QString line = lines.value(entry.line - 1);
    return {filePath, entry.line, firstTextIn(line, line.indexOf(QLatin1Char('=')) + 1) + 1};
}

QString IniFile::writtenValue(const IniEntry& entry) const
{
    return lines.value(entry.line - 1).section(QLatin1Char('='), 1).trimmed();
}

} // namespace ResourceCheck
