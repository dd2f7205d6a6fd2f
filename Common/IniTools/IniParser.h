#pragma once

#include "Common/IniTools/IniEntries.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

class QTextCodec;

/// Parses the text of an INI file and reports all that it holds and every fault, with line numbers from 1.
///
/// Lines end with LF or CRLF; a byte-order mark may stand in front; blanks around a line, a name or a value do not
/// count. A line is blank, a comment (begins with `;` or `#`), `[name]` (all between the first `[` and the `]` that
/// ends the line), or `name=value`, split at the first `=`. A value keeps its text exactly; one pair of double quotes
/// around all of it is taken off and keeps the blanks inside. Names are case-sensitive. Keys before the first group
/// line belong to the group with the empty name.
class Q_DECL_EXPORT IniParser
{
public:
    /// What is wrong with one line.
    struct Fault {
        int line;       ///< From 1.
        QString reason; ///< For people to read.
    };

    /// As of an empty file.
    IniParser() = default;
    /// Parses the whole text at once. The codec is not needed afterwards.
    IniParser(const QByteArray& content, QTextCodec& codec);

    /// The groups in the order in which they are first named, those without an entry included.
    const QStringList& groups() const;

    /// The keys of the group in the order in which they are first named; empty for an unknown group.
    QStringList keys(const QString& group) const;

    /// The entries in the order of the file. A key given again in its group is here again, and a fault besides.
    const QVector<IniEntry>& entries() const;

    /// The entry of the key in the group, the last one if it is given again; null if there is none. Lives as long as
    /// this object.
    const IniEntry* find(const QString& group, const QString& key) const;

    /// In the order of their lines: a line that is none of the above, an empty key name, a key given again, a group
    /// line without its end (entries are then left out until the next group line), bytes that are no text in the
    /// codec (they become U+FFFD).
    const QVector<Fault>& faults() const;

private:
    QString decode(const QByteArray& content, QTextCodec& codec);
    QString decodeLines(const QByteArray& content, QTextCodec& codec);
    void parseLine(const QStringRef& line, int number);
    void parseGroupLine(const QStringRef& line, int number);
    void parseEntryLine(const QStringRef& line, int number);
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
