// The platform's reader of INI files behind the installed headers: as little of it as the library uses.

#include "Common/IniTools/IniFileManager.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>

bool IniEntries::append(IniEntry&& entry)
{
    entries.append(std::move(entry));
    return true;
}

const IniEntry* IniEntries::find(const QString& group, const QString& key) const
{
    const auto found = std::find_if(entries.rbegin(), entries.rend(),
                                    [&](const IniEntry& entry) { return entry.group == group && entry.key == key; });
    return found == entries.rend() ? nullptr : &*found;
}

IniParser::IniParser(const QByteArray& content, QTextCodec& codec)
{
    QString group;
    int number = 0;
    for (const QString& line : codec.toUnicode(content).split('\n')) {
        ++number;
        const QString text = line.trimmed();
        const int separator = text.indexOf('=');
        if (text.startsWith('[') && text.endsWith(']')) {
            group = text.mid(1, text.size() - 2);
            groupNames.append(group);
        } else if (separator > 0 && !text.startsWith(';') && !text.startsWith('#')) {
            entryList.append({group, text.left(separator).trimmed(), text.mid(separator + 1).trimmed(), number});
        }
    }
}

IniFileManager::IniFileManager(const QString& path, const char* codec)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        parser = IniParser(file.readAll(), *QTextCodec::codecForName(codec == nullptr ? "UTF-8" : codec));
}

IniFileManager::~IniFileManager() = default;

bool IniFileManager::contains(const QString& group, const QString& key) const
{
    return parser.find(group, key) != nullptr;
}

QString IniFileManager::getValueString(const QString& group, const QString& key, const QString& defaultValue) const
{
    const IniEntry* entry = parser.find(group, key);
    return entry == nullptr ? defaultValue : entry->value;
}

QVariant IniFileManager::getValue(const QString& group, const QString& key, const QVariant& defaultValue) const
{
    return getValueString(group, key, defaultValue.toString());
}

int IniFileManager::getValueInteger(const QString& group, const QString& key, int defaultValue) const
{
    bool isInteger = false;
    const int number = getValueString(group, key, QString()).toInt(&isInteger);
    return isInteger ? number : defaultValue;
}

QList<QString> IniFileManager::getGroups() const
{
    return parser.groups();
}

QList<QString> IniFileManager::getChildKeys(const QString& group) const
{
    return parser.keys(group);
}

const QStringList& IniParser::groups() const
{
    return groupNames;
}

QStringList IniParser::keys(const QString& group) const
{
    QStringList names;
    for (const IniEntry& entry : entryList.list()) {
        if (entry.group == group)
            names.append(entry.key);
    }
    return names;
}

const IniEntry* IniParser::find(const QString& group, const QString& key) const
{
    return entryList.find(group, key);
}
