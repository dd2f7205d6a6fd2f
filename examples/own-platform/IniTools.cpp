// The platform's INI reader behind the installed header, reduced to what the library uses.

#include "Common/IniTools/IniFileManager.h"

#include <QFile>
#include <QMap>
#include <QStringList>

class IniFileManager::Private
{
public:
    QStringList groups;
    QMap<QString, QStringList> keys; // by group
    QMap<QPair<QString, QString>, QString> values;
};

namespace
{

template <typename Entries>
Entries read(const QString& path)
{
    Entries entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    QString group;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const auto separator = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']')) {
            group = line.mid(1, line.size() - 2);
            entries.groups.append(group);
        } else if (separator > 0 && !line.startsWith(';') && !line.startsWith('#')) {
            const QString key = line.left(separator).trimmed();
            entries.keys[group].append(key);
            entries.values[{group, key}] = line.mid(separator + 1).trimmed();
        }
    }
    return entries;
}

} // namespace

IniFileManager::IniFileManager(const QString& path, const char* /*codec*/) // the library's files are UTF-8
    : d(new Private(read<Private>(path)))
{
}

IniFileManager::~IniFileManager() = default;

bool IniFileManager::contains(const QString& group, const QString& key) const
{
    return d->values.contains({group, key});
}

QString IniFileManager::getValueString(const QString& group, const QString& key, const QString& defaultValue) const
{
    return d->values.value({group, key}, defaultValue);
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
    return d->groups;
}

QList<QString> IniFileManager::getChildKeys(const QString& group) const
{
    return d->keys.value(group);
}
