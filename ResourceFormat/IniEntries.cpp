#include "ResourceFormat/IniEntries.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <utility>

namespace ResourceFormat
{

namespace
{

constexpr std::size_t firstTableSize = 16;

uint hashOf(const QString& group, const QString& key)
{
    return static_cast<uint>(qHash(key, qHash(group, 0)));
}

// Inlined; QString's operator== would be two calls into Qt.
bool isEqual(const QString& left, const QString& right)
{
    return left.size() == right.size()
        && std::memcmp(left.constData(), right.constData(), static_cast<std::size_t>(left.size()) * sizeof(QChar)) == 0;
}

bool hasNames(const IniEntry& entry, const QString& group, const QString& key)
{
    return isEqual(entry.key, key) && isEqual(entry.group, group);
}

} // namespace

void IniEntries::reserve(int count)
{
    entries.reserve(count);
    std::size_t size = firstTableSize;
    while (size < 2 * static_cast<std::size_t>(count))
        size *= 2;
    resizeTable(size);
}

bool IniEntries::append(IniEntry&& entry)
{
    if (table.size() < 2 * (used + std::size_t(1)))
        resizeTable(std::max(firstTableSize, 2 * table.size()));
    const uint hash = hashOf(entry.group, entry.key);
    Slot& slot = table[slotOf(hash, entry.group, entry.key)];
    const bool isNew = slot.entry < 0;
    slot = {hash, static_cast<int>(entries.size())};
    lastFound = -1;
    entries.append(std::move(entry));
    if (isNew)
        ++used;
    return isNew;
}

const IniEntry* IniEntries::find(const QString& group, const QString& key) const
{
    if (table.empty())
        return nullptr;
    // Callers first ask whether there is a value, and then for the value.
    if (lastFound >= 0 && hasNames(entries.at(lastFound), group, key))
        return &entries.at(lastFound);
    lastFound = table[slotOf(hashOf(group, key), group, key)].entry;
    return lastFound < 0 ? nullptr : &entries.at(lastFound);
}

// The slot that holds these names, or the free one where they belong.
uint IniEntries::slotOf(uint hash, const QString& group, const QString& key) const
{
    const uint mask = static_cast<uint>(table.size()) - 1;
    uint index = hash & mask;
    for (; table[index].entry >= 0; index = (index + 1) & mask) {
        const IniEntry& entry = entries.at(table[index].entry);
        if (table[index].hash == hash && hasNames(entry, group, key))
            break;
    }
    return index;
}

void IniEntries::resizeTable(std::size_t size)
{
    const std::vector<Slot> old = std::move(table);
    table.assign(size, Slot());
    const uint mask = static_cast<uint>(table.size()) - 1;
    for (const Slot& slot : old) {
        if (slot.entry < 0)
            continue;
        uint index = slot.hash & mask;
        while (table[index].entry >= 0)
            index = (index + 1) & mask;
        table[index] = slot;
    }
}

} // namespace ResourceFormat
