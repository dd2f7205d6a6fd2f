#pragma once

#include "tests/support/DBusValue.h"
#include "tests/support/QtVersion.h"

namespace Tests
{

/// Makes values from a source of numbers, which has `int below(int end)` and `qint64 bits()`.
template <typename Source>
struct DBusValueMaker {
    Source& source;
    int room = 0; // limits the number of values in one answer; a variant counts as 50 of them

    // Not 0: a source that is exhausted returns 0, and values must end then.
    bool isOneIn(int count) { return source.below(count) == count - 1; }

    template <typename List>
    auto oneOf(const List& list)
    {
        return *std::next(std::begin(list), source.below(static_cast<int>(std::size(list))));
    }

    QByteArray signature(int levels)
    {
        const QByteArray basicTypes = "ybnqiuxtdsog"; // without "h": a message can contain only a few
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
            convertToSignature(value.basic, signature);
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

    /// The variant that a service answers with: a reply record with a value of any type, or anything else. Every second
    /// one resembles a correct answer.
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

} // namespace Tests
