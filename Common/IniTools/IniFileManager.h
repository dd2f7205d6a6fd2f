#pragma once

#include "Common/IniTools/IniParser.h"

#include <QList>
#include <QString>
#include <QVariant>

/// Reader of one INI file: parsed once, in the constructor, and answered from memory. The grammar is IniParser's.
///
/// Group and key names are case-sensitive. Of a key given twice the last value holds, in the place of the first.
class Q_DECL_EXPORT IniFileManager
{
public:
    /// Reads the file at `path` in the text codec named `codec` (null: UTF-8; a name that Qt does not know: a warning,
    /// and UTF-8). A file that is missing, unreadable or not a regular file has no groups. That, and every fault of
    /// the file's syntax, is logged as one warning in the category `platform.ini`, with path, line and reason.
    IniFileManager(const QString& path, const char* codec);
    ~IniFileManager();

    /// Whether the file has the key in the group, with whatever value.
    bool contains(const QString& group, const QString& key) const;

    /// The text of the value; the default when the file has no such key.
    QString getValueString(const QString& group, const QString& key, const QString& defaultValue) const;

    /// The text of the value, in a QVariant; the default when the file has no such key.
    QVariant getValue(const QString& group, const QString& key, const QVariant& defaultValue) const;

    /// The value as a decimal integer; the default when it is none, or when the file has no such key.
    int getValueInteger(const QString& group, const QString& key, int defaultValue) const;

    /// In the order of the file; a group without keys is reported too.
    QList<QString> getGroups() const;

    /// In the order of the file; empty for an unknown group.
    QList<QString> getChildKeys(const QString& group) const;

private:
    IniParser parser;
};
