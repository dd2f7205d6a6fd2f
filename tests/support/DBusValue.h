#pragma once

#include <QDBusMetaType>
#include <QVariant>
#include <QVector>

#include <dbus/dbus.h>
#include <fcntl.h>
#include <unistd.h>

/// A D-Bus value of any type: a basic one or an array of bytes, or the members of a container. libdbus writes it, since
/// Qt writes only types that it knows.
struct DBusValue {
    QByteArray signature;
    QVariant basic;
    QVector<DBusValue> members;

    bool isNumber() const { return signature.size() == 1 && QByteArray("ybnqiuxtd").contains(signature); }

    /// What Qt reads itself, and hands over as a value of its own, does not show its signature.
    bool isArgument() const
    {
        return (signature.startsWith('a') && signature != "as" && signature != "ay") || signature.startsWith('(');
    }

    void append(DBusMessageIter& message) const
    {
        const char type = signature.at(0);
        if (isNumber()) {
            // The low bytes are what a smaller type takes; a double is what it is.
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

/// Makes values of a source of numbers: `int below(int end)` and `qint64 bits()`.
template <typename Source>
struct DBusValueMaker {
    Source& source;
    int room = 0; // for the values of one answer, whatever the source says; a variant takes that of 50

    // The last one: a source that gives 0 when it is exhausted makes short values.
    bool isOneIn(int count) { return source.below(count) == count - 1; }

    template <typename List>
    auto oneOf(const List& list)
    {
        return list[source.below(static_cast<int>(std::size(list)))];
    }

    QByteArray signature(int levels)
    {
        const QByteArray basicTypes = "ybnqiuxtdsog"; // and "h", of which a message holds few
        if (levels == 0 || isOneIn(2))
            return QByteArray(1, oneOf(basicTypes));
        switch (source.below(4)) {
        case 0:
            return 'a' + signature(levels - 1);
        case 1:
            return QByteArray("a{") + oneOf(basicTypes) + signature(levels - 1) + '}';
        case 2:
            return "v";
        }
        QByteArray members;
        for (int count = source.below(4); count >= 0; --count)
            members += signature(levels - 1);
        return '(' + members + ')';
    }

    QString text()
    {
        static const QStringList pieces{"/",    "a", "%1", "\"",         "\\",     "\n",
                                        "\x01", "ß", "日", "\U0001F525", "\uFFFF", " "};
        QString text = "";
        for (int count = isOneIn(50) ? 5000 : source.below(8); count > 0; --count)
            text += oneOf(pieces);
        return text;
    }

    DBusValue value(const QByteArray& signature)
    {
        DBusValue value{signature, {}, {}};
        const char type = signature.at(0);
        room -= type == 'v' ? 50 : 1;
        if (value.isNumber()) {
            value.basic = type == 'd' ? QVariant(static_cast<double>(source.bits()) / 3) : QVariant(source.bits());
            value.basic.convert(QDBusMetaType::signatureToType(signature));
        } else if (signature == "ay") {
            value.basic = QByteArray(source.below(9), isOneIn(2) ? 'x' : '\xff');
        } else if (signature.size() == 1 && type != 'v') {
            value.basic = type == 's' ? text() : type == 'g' ? QString(this->signature(2)) : "/object/path";
        } else if (type == 'v') {
            value.members.append(this->value(this->signature(room > 0 ? 2 : 0)));
        } else if (type == 'a') {
            for (int count = isOneIn(200) ? 300 : source.below(4); count > 0 && room > 0; --count)
                value.members.append(this->value(firstType(signature.mid(1))));
        } else { // a structure, or the entry of a dictionary
            for (QByteArray rest = signature.mid(1).chopped(1); !rest.isEmpty();) {
                value.members.append(this->value(firstType(rest)));
                rest.remove(0, value.members.constLast().signature.size());
            }
        }
        return value;
    }

    /// The variant that a service answers with: a reply record with a value of any type, or anything else. Every other
    /// one is near to a right one.
    DBusValue answer()
    {
        static const QByteArrayList values =
            QByteArray("s h a((ii)s) a((ii)s) as ay v a((ii)i) a((ii)) a((ii)ss) a((xx)s) ((ii)s) aa((ii)s) a(iis) "
                       "a{s(ii)}")
                .split(' ');
        static const QByteArrayList records =
            QByteArray("(bis) (bisvv) (iisv) (bssv) (bisa{sv}) a(bisv) ((bisv)) (biv) (bisv(bisv)) s as ay v")
                .split(' ');
        room = 1000;
        const bool isRecord = source.below(3) < 2;
        const QByteArray content = isOneIn(2) ? oneOf(isRecord ? values : records) : signature(3);
        return isRecord ? record(value(content), isOneIn(10)) : DBusValue{"v", {}, {value(content)}};
    }

    DBusValue record(const DBusValue& content, bool isError)
    {
        return {"v", {}, {{"(bisv)", {}, {{"b", isError, {}}, value("i"), value("s"), {"v", {}, {content}}}}}};
    }

private:
    static QByteArray firstType(const QByteArray& signature)
    {
        DBusSignatureIter iterator;
        dbus_signature_iter_init(&iterator, signature.constData());
        char* const type = dbus_signature_iter_get_signature(&iterator);
        QByteArray copy = type;
        dbus_free(type);
        return copy;
    }
};
