#pragma once

#include "ResourceFormat/IniEntries.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace ResourceFormat
{

/// Parses the text of an INI file. Reports everything that it contains, and every fault, with line numbers from 1.
///
/// Lines end with LF or CRLF. The text may begin with a byte-order mark. Blanks around a line, a name or a value do not
/// count. A line is blank; or a comment, which begins with `;` or `#`; or `[name]`, where the name is everything
/// between the first `[` and the `]` that ends the line; or `name=value`, split at the first `=`. A value keeps its
/// text exactly, except that one pair of double quotes around the whole value is removed; blanks inside the quotes are
/// kept. Names are case-sensitive. Keys before the first group line belong to the group with the empty name.
class IniParser
{
public:
    /// What is wrong with one line.
    struct Fault {
        int line;       ///< From 1.
        QString reason; ///< Human-readable.
    };

    /// Like the parser of an empty file.
    IniParser() = default;

    /// Parses the whole text. TextDecoder must know the codec.
    explicit IniParser(const QByteArray& content, const char* codec = "UTF-8");

    /// The groups in the order of their first line, including groups without entries.
    const QStringList& groups() const;

    /// The keys of the group in the order of their first entry; empty for an unknown group.
    QStringList keys(const QString& group) const;

    /// The entries in the order of the file. A duplicate key is listed each time, and is a fault.
    const QVector<IniEntry>& entries() const;

    /// The entry of the key in the group, the last one if the key is a duplicate, or null. Lives as long as this
    /// object.
    const IniEntry* find(const QString& group, const QString& key) const { return entryList.find(group, key); }

    /// In the order of their lines: any other line; an empty key name; a duplicate key; a group line without a closing
    /// bracket, after which entries are ignored until the next group line; bytes that are not valid text in the codec,
    /// which become U+FFFD.
    const QVector<Fault>& faults() const;

private:
    QString decode(const QByteArray& content, const char* codec);
    QString decodeLines(const QByteArray& content, const char* codec);
    void parseLine(QStringView line, int number);
    void parseGroupLine(QStringView line, int number);
    void parseEntryLine(QStringView line, int number);
    void enterGroup(const QString& name);
    void addFault(int line, const QString& reason);

    QStringList groupNames;
    QVector<QStringList> groupKeys; // by index in groupNames
    QHash<QString, int> groupIndices;
    IniEntries entryList;
    QVector<Fault> faultList;
    int currentGroup = noGroup;
    bool groupIsUsable = true;

    static constexpr int noGroup = -1; // before the first group line and entry
};

} // namespace ResourceFormat
