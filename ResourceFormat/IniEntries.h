#pragma once

#include <QString>
#include <QVector>

#include <vector>

namespace ResourceFormat
{

/// One `name=value` line of an INI file.
struct IniEntry {
    QString group; ///< Empty before the first group line.
    QString key;   ///< Never empty.
    QString value; ///< Without the blanks and the pair of quotes around it.
    int line;      ///< From 1.
};

/// The entries of an INI file in their order, found by group and key through one hash table of both names.
///
/// Nested QHashes would hash and compare twice for each lookup, and follow one more pointer each time.
class IniEntries
{
public:
    /// Allocates room for this many entries at once.
    void reserve(int count);

    /// Returns false if the group already has the key; find() then answers with the new entry.
    bool append(IniEntry&& entry);

    /// The last entry with these names, or null. Valid until the next append().
    const IniEntry* find(const QString& group, const QString& key) const;

    /// In the order in which they were appended, including those with duplicate names.
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

} // namespace ResourceFormat

Q_DECLARE_TYPEINFO(ResourceFormat::IniEntry, Q_MOVABLE_TYPE);
