#include "Common/IniTools/IniFileManager.h"

#include "Common/FileTools/RegularFile.h"

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
    parser = IniParser(content, codecForName(codec));
    for (const IniParser::Fault& fault : parser.faults())
        qCWarning(platformIni).noquote().nospace() << path << ':' << fault.line << ": " << fault.reason;
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
    const IniEntry* entry = parser.find(group, key);
    return entry == nullptr ? defaultValue : QVariant(entry->value);
}

int IniFileManager::getValueInteger(const QString& group, const QString& key, int defaultValue) const
{
    const IniEntry* entry = parser.find(group, key);
    bool isInteger = false;
    const int number = entry == nullptr ? 0 : entry->value.toInt(&isInteger);
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
