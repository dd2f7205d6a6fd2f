#pragma once

#include <QString>
#include <QVector>

#include <vector>

/// One `name=value` line of an INI file.
struct IniEntry {
    QString group; ///< Empty before the first group line.
    QString key;   ///< Never empty.
    QString value; ///< Without the blanks and the pair of quotes around it.
    int line;      ///< From 1.
};
Q_DECLARE_TYPEINFO(IniEntry, Q_MOVABLE_TYPE);

/// The entries of an INI file in its order, found by group and key through one hash table of both names.
///
/// Nested QHashes would hash and compare twice for each question, and follow a pointer more for each of the two.
class IniEntries
{
public:
    /// Makes room for this many entries at once.
    void reserve(int count);

    /// Returns false when the group has the key already; the new entry is then the one that is found.
    bool append(IniEntry&& entry);

    /// The entry given last under these names, or null. Valid until the next append().
    const IniEntry* find(const QString& group, const QString& key) const;

    /// In the order in which they were appended, those of names given again included.
    const QVector<IniEntry>& list() const { return entries; }

private:
    struct Slot {
        uint hash = 0;
        int entry = -1;
    };

    uint slotOf(uint hash, const QString& group, const QString& key) const;
    void resizeTable(std::size_t size);

    QVector<IniEntry> entries;
    std::vector<Slot> table; // a power of two in size, at most half full
    uint used = 0;
    mutable int lastFound = -1;
};
