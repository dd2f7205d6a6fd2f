#pragma once

#include "tests/support/DBusValue.h"
#include "tests/support/Getters.h"
#include "tests/support/QtVersion.h"

namespace Tests
{

/// What a getter returns and logs.
struct Expectation {
    QString result;
    QStringList records;

    /// A text that differs if result, its being null, or the records differ.
    QString text() const
    {
        return (result.isNull() ? "null" : Getter::quoted(result)) + ", logged " + Getter::quoted(records.join('\n'));
    }

    static Expectation failure(const Getter& getter, const QString& callError, const QString& recordError)
    {
        return {getter.givesSizes() ? "" : QString(), getter.recordsOfFailure(callError, recordError)};
    }

    /// If the service answers with this variant.
    static Expectation of(const Getter& getter, const DBusValue& variant)
    {
        const DBusValue& record = variant.members.at(0);
        const QString error = errorOf(record);
        if (!error.isNull())
            return failure(getter, {}, error);
        const DBusValue& value = record.members.at(3).members.at(0);
        const QString result = getter.givesSizes() ? sizesOf(value) : textOf(value);
        return result.isNull() ? failure(getter, {}, {}) : Expectation{result, {}};
    }

    /// The message if the record is read as an error; null if it is read as a value.
    static QString errorOf(const DBusValue& record)
    {
        if (record.signature != "(bisv)")
            return "Unexpected D-Bus reply record: found signature \"" + (record.isArgument() ? record.signature : "")
                + "\", expected \"(bisv)\"";
        return record.members.at(0).basic.toBool() ? record.members.at(2).basic.toString() : QString();
    }

private:
    // Null if Qt does not convert the value to a string. It converts numbers, text and byte arrays; Qt 6 also bytes.
    static QString textOf(const DBusValue& value)
    {
        const bool isText = (value.isNumber() && (bytesAreText || value.signature != "y")) || value.signature == "s"
            || value.signature == "ay";
        return isText ? value.basic.toString() + "" : QString(); // an empty text is not null
    }

    static QString sizesOf(const DBusValue& value)
    {
        if (value.signature != "a((ii)s)")
            return QString();
        QString text = "";
        for (const DBusValue& entry : value.members) {
            const DBusValue& size = entry.members.at(0);
            text += size.members.at(0).basic.toString() + 'x' + size.members.at(1).basic.toString() + ' '
                + entry.members.at(1).basic.toString() + ';';
        }
        return text;
    }
};

} // namespace Tests
