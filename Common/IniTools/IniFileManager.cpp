#include "Common/IniTools/IniFileManager.h"

#include "Common/FileTools/RegularFile.h"
#include "Common/IniTools/IniParser.h"

#include <QLoggingCategory>
#include <QTextCodec>

namespace
{

Q_LOGGING_CATEGORY(platformIni, "platform.ini")

QTextCodec& codecForName(const char* name)
{
    if (name != nullptr) {
        if (QTextCodec* codec = QTextCodec::codecForName(name))
            return *codec;
        qCWarning(platformIni).nospace() << "Unknown text codec \"" << name << "\", reading as UTF-8";
    }
    return *QTextCodec::codecForName("UTF-8");
}

} // namespace

IniFileManager::IniFileManager(const QString& path, const char* codec)
{
    QString reason;
    const QByteArray content = RegularFile::readAll(path, reason);
    if (!reason.isNull()) {
        qCWarning(platformIni).noquote().nospace() << "Cannot read \"" << path << "\": " << reason;
        return;
    }
    const IniParser parser(content, codecForName(codec));
    for (const IniParser::Fault& fault : parser.faults())
        qCWarning(platformIni).noquote().nospace() << path << ':' << fault.line << ": " << fault.reason;
    groupNames = parser.groups();
    for (const QString& name : qAsConst(groupNames))
        groups.insert(name, Group());
    for (const IniParser::Entry& entry : parser.entries()) {
        Group& group = groups[entry.group];
        if (!group.values.contains(entry.key))
            group.keys.append(entry.key);
        group.values.insert(entry.key, entry.value);
    }
}

IniFileManager::~IniFileManager() = default;

bool IniFileManager::contains(const QString& group, const QString& key) const
{
    return find(group, key) != nullptr;
}

QString IniFileManager::getValueString(const QString& group, const QString& key, const QString& defaultValue) const
{
    const QString* value = find(group, key);
    return value == nullptr ? defaultValue : *value;
}

QVariant IniFileManager::getValue(const QString& group, const QString& key, const QVariant& defaultValue) const
{
    const QString* value = find(group, key);
    return value == nullptr ? defaultValue : QVariant(*value);
}

int IniFileManager::getValueInteger(const QString& group, const QString& key, int defaultValue) const
{
    const QString* value = find(group, key);
    bool isInteger = false;
    const int number = value == nullptr ? 0 : value->toInt(&isInteger);
    return isInteger ? number : defaultValue;
}

QList<QString> IniFileManager::getGroups() const
{
    return groupNames;
}

QList<QString> IniFileManager::getChildKeys(const QString& group) const
{
    return groups.value(group).keys;
}

const QString* IniFileManager::find(const QString& group, const QString& key) const
{
    const auto foundGroup = groups.constFind(group);
    if (foundGroup == groups.constEnd())
        return nullptr;
    const auto foundValue = foundGroup->values.constFind(key);
    return foundValue == foundGroup->values.constEnd() ? nullptr : &*foundValue;
}
