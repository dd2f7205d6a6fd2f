#pragma once

#include "Common/DBusTools/ErrorContainer.h"

#include <QDBusArgument>
#include <QVariant>

/// The outcome of one D-Bus call: a value or an error. On the bus it is the structure `(bisv)`: is it an error,
/// error code, error message, value.
///
/// A value of a D-Bus basic type, and a byte array, is held as the matching Qt type. Every other container, an array
/// of strings included, is held as a QDBusArgument; a variant within the variant as a QDBusVariant. Compare the
/// argument's currentSignature() before you read it: Qt's demarshalling does not survive a signature that it did not
/// expect.
class Q_DECL_EXPORT DBusReply
{
public:
    /// A reply without an error and with an invalid value.
    DBusReply() = default;

    /// Turns the reply into an error reply; its value becomes invalid.
    void setError(int errorCode, const QString& errorMessage);

    /// False for a new reply.
    bool isError() const;

    /// Code 0 and a null message unless isError(). Lives as long as this object.
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

/// Writes the record. An error reply, or one without a value, carries an empty string as its value. A value of a type
/// of your own must have been registered with qDBusRegisterMetaType().
Q_DECL_EXPORT QDBusArgument& operator<<(QDBusArgument& argument, const DBusReply& reply);

/// Reads the record. A record of another form, or an argument that holds nothing to read, becomes an error reply with
/// the default error code whose message names the signature found and the one expected. Never trusts the sender.
Q_DECL_EXPORT const QDBusArgument& operator>>(const QDBusArgument& argument, DBusReply& reply);
