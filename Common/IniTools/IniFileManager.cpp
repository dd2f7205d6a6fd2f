#include "Common/IniTools/IniFileManager.h"

#include "ResourceFormat/IniParser.h"
#include "ResourceFormat/RegularFile.h"
#include "ResourceFormat/TextDecoder.h"

#include <QLoggingCategory>

namespace
{

Q_LOGGING_CATEGORY(platformIni, "platform.ini")

const char* knownCodec(const char* name)
{
    if (name == nullptr)
        return "UTF-8";
    if (ResourceFormat::TextDecoder::knows(name))
        return name;
    qCWarning(platformIni).nospace() << "Unknown text codec \"" << name << "\", reading as UTF-8";
    return "UTF-8";
}

ResourceFormat::IniParser read(const QString& path, const char* codec)
{
    QString reason;
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, reason);
    if (!reason.isNull()) {
        qCWarning(platformIni).noquote().nospace() << "Cannot read \"" << path << "\": " << reason;
        return {};
    }
    ResourceFormat::IniParser parser(content, knownCodec(codec));
    for (const ResourceFormat::IniParser::Fault& fault : parser.faults())
        qCWarning(platformIni).noquote().nospace() << path << ':' << fault.line << ": " << fault.reason;
    return parser;
}

} // namespace

class IniFileManager::Private
{
public:
    const ResourceFormat::IniParser parser;
};

IniFileManager::IniFileManager(const QString& path, const char* codec)
    : d(new Private{read(path, codec)})
{
}

IniFileManager::~IniFileManager() = default;

bool IniFileManager::contains(const QString& group, const QString& key) const
{
    return d->parser.find(group, key) != nullptr;
}

QString IniFileManager::getValueString(const QString& group, const QString& key, const QString& defaultValue) const
{
    const ResourceFormat::IniEntry* entry = d->parser.find(group, key);
    return entry == nullptr ? defaultValue : entry->value;
}

QVariant IniFileManager::getValue(const QString& group, const QString& key, const QVariant& defaultValue) const
{
    const ResourceFormat::IniEntry* entry = d->parser.find(group, key);
    return entry == nullptr ? defaultValue : QVariant(entry->value);
}

int IniFileManager::getValueInteger(const QString& group, const QString& key, int defaultValue) const
{
    const ResourceFormat::IniEntry* entry = d->parser.find(group, key);
    bool isInteger = false;
    const int number = entry == nullptr ? 0 : entry->value.toInt(&isInteger);
    return isInteger ? number : defaultValue;
}

QList<QString> IniFileManager::getGroups() const
{
    return d->parser.groups();
}

QList<QString> IniFileManager::getChildKeys(const QString& group) const
{
    return d->parser.keys(group);
}
