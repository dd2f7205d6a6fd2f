#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <memory>

/// Reader of one INI file. The file is parsed once, in the constructor, and answered from memory.
///
/// Group and key names are case-sensitive. If a group has a key twice, the last value counts, in the place of the
/// first.
class Q_DECL_EXPORT IniFileManager
{
public:
    /// Reads the file at `path` in the text codec named `codec`; null means UTF-8, and so does, after a warning, a name
    /// that the platform does not know. A file that is missing, unreadable or not a regular file has no groups. That,
    /// and every syntax fault, is logged as one warning in the category `platform.ini`, with path, line and reason.
    IniFileManager(const QString& path, const char* codec);
    ~IniFileManager();

    /// Whether the file has the key in the group, with any value.
    bool contains(const QString& group, const QString& key) const;

    /// The text of the value, or the default if the file has no such key.
    QString getValueString(const QString& group, const QString& key, const QString& defaultValue) const;

    /// The text of the value in a QVariant, or the default if the file has no such key.
    QVariant getValue(const QString& group, const QString& key, const QVariant& defaultValue) const;

    /// The value as a decimal integer, or the default if it is anything else or the file has no such key.
    int getValueInteger(const QString& group, const QString& key, int defaultValue) const;

    /// In the order of the file, including groups without keys.
    QList<QString> getGroups() const;

    /// In the order of the file; empty for an unknown group.
    QList<QString> getChildKeys(const QString& group) const;

private:
    class Private;

    std::unique_ptr<const Private> d;
};
