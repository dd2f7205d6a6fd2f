#pragma once

#include <QVariant>
#include <QVector>

#include <dbus/dbus.h>
#include <fcntl.h>
#include <unistd.h>

namespace Tests
{

/// A D-Bus value of any type: a basic value or an array of bytes in `basic`, otherwise the `members` of a container.
/// libdbus writes it, because Qt writes only types that it knows.
struct DBusValue {
    QByteArray signature;
    QVariant basic;
    QVector<DBusValue> members;

    bool isNumber() const { return signature.size() == 1 && QByteArray("ybnqiuxtd").contains(signature); }

    /// Qt passes this value on as a QDBusArgument. It reads all others itself, and then their signature is lost.
    bool isArgument() const
    {
        return (signature.startsWith('a') && signature != "as" && signature != "ay") || signature.startsWith('(');
    }

    void append(DBusMessageIter& message) const
    {
        const char type = signature.at(0);
        if (isNumber()) {
            // Smaller types are read from the low bytes.
            const double real = basic.toDouble();
            const qulonglong bits = basic.toULongLong();
            dbus_message_iter_append_basic(&message, type, type == 'd' ? static_cast<const void*>(&real) : &bits);
        } else if (type == 'h') {
            const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
            dbus_message_iter_append_basic(&message, type, &file);
            close(file);
        } else if (type == 's' || type == 'o' || type == 'g') {
            const QByteArray text = basic.toString().toUtf8();
            const char* const characters = text.constData();
            dbus_message_iter_append_basic(&message, type, &characters);
        } else {
            appendContainer(message, type);
        }
    }

    static DBusMessage* appendTo(DBusMessage* message, const QVector<DBusValue>& values)
    {
        DBusMessageIter content;
        dbus_message_iter_init_append(message, &content);
        for (const DBusValue& value : values)
            value.append(content);
        return message;
    }

private:
    void appendContainer(DBusMessageIter& message, char type) const
    {
        const QByteArray content = type == 'a' ? signature.mid(1)
            : type == 'v'                      ? members.at(0).signature
                                               : QByteArray();
        DBusMessageIter inner;
        const int container = type == '(' ? DBUS_TYPE_STRUCT : type == '{' ? DBUS_TYPE_DICT_ENTRY : type;
        dbus_message_iter_open_container(&message, container, content.isNull() ? nullptr : content.constData(), &inner);
        const QByteArray bytes = basic.toByteArray();
        const char* const begin = bytes.constData();
        if (signature == "ay")
            dbus_message_iter_append_fixed_array(&inner, DBUS_TYPE_BYTE, &begin, bytes.size());
        for (const DBusValue& member : members)
            member.append(inner);
        dbus_message_iter_close_container(&message, &inner);
    }
};

} // namespace Tests
