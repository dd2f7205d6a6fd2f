#pragma once

#include "Common/DBusTools/ErrorContainer.h"

#include <QDBusArgument>
#include <QVariant>

/// The outcome of one D-Bus call: a value or an error. On the bus it is the structure `(bisv)`: whether it is an error,
/// error code, error message, value.
///
/// A value of a basic D-Bus type, or a byte array, is stored as the matching Qt type. Every other container, including
/// an array of strings, is stored as a QDBusArgument, and a variant within the variant as a QDBusVariant. Compare the
/// argument's currentSignature() before you read it: Qt's demarshalling can crash on an unexpected signature.
class Q_DECL_EXPORT DBusReply
{
public:
    /// A reply without an error and with an invalid value.
    DBusReply() = default;

    /// Turns the reply into an error reply; its value becomes invalid.
    void setError(int errorCode, const QString& errorMessage);

    /// False for a new reply.
    bool isError() const;

    /// Code 0 and a null message unless isError(). The reference lives as long as this object.
    const ErrorContainer& getError() const;

    /// Turns the reply into a successful one.
    void setValue(const QVariant& replyValue);

    /// Invalid in an error reply.
    QVariant getValue() const;

private:
    bool error = false;
    ErrorContainer errorContainer;
    QVariant value;
};

Q_DECLARE_METATYPE(DBusReply)

/// Writes the record. The value of an error reply, or of a reply without a value, is an empty string. The type of any
/// other value must be registered with qDBusRegisterMetaType().
Q_DECL_EXPORT QDBusArgument& operator<<(QDBusArgument& argument, const DBusReply& reply);

/// Reads the record and never trusts the sender: a record of another signature, or an argument without data, becomes an
/// error reply with the default error code. Its message names the signature found and the one expected.
Q_DECL_EXPORT const QDBusArgument& operator>>(const QDBusArgument& argument, DBusReply& reply);
