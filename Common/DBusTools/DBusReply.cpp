#include "Common/DBusTools/DBusReply.h"

#include <QDBusVariant>

namespace
{

const QLatin1String recordSignature("(bisv)");

// Qt delivers an array of strings as QStringList, which converts to a string. An array must not be taken for text, so
// it is turned back into a container.
// Qt 6 delivers an empty array of bytes as null, which would convert to the null string of a failed call.
QVariant keepContainer(const QVariant& value)
{
    if (value.userType() == QMetaType::QByteArray && value.toByteArray().isNull())
        return QByteArray("");
    if (value.userType() != QMetaType::QStringList)
        return value;
    QDBusArgument array;
    array << value.toStringList();
    return QVariant::fromValue(array);
}

} // namespace

void DBusReply::setError(int errorCode, const QString& errorMessage)
{
    error = true;
    errorContainer = ErrorContainer(errorCode, errorMessage);
    value = QVariant();
}

bool DBusReply::isError() const
{
    return error;
}

const ErrorContainer& DBusReply::getError() const
{
    return errorContainer;
}

void DBusReply::setValue(const QVariant& replyValue)
{
    error = false;
    errorContainer = ErrorContainer();
    value = replyValue;
}

QVariant DBusReply::getValue() const
{
    return value;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusReply& reply)
{
    const QVariant value = reply.getValue();
    argument.beginStructure();
    argument << reply.isError() << reply.getError().getErrorCode() << reply.getError().getErrorMessage()
             << QDBusVariant(value.isValid() ? value : QVariant(QString()));
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusReply& reply)
{
    const QString signature = argument.currentSignature();
    if (signature != recordSignature) {
        reply.setError(ErrorContainer::getDefaultErrorCode(),
                       QStringLiteral("Unexpected D-Bus reply record: found signature \"%1\", expected \"%2\"")
                           .arg(signature, recordSignature));
        return argument;
    }
    bool isError = false;
    int errorCode = 0;
    QString errorMessage;
    QDBusVariant value;
    argument.beginStructure();
    argument >> isError >> errorCode >> errorMessage >> value;
    argument.endStructure();
    if (isError)
        reply.setError(errorCode, errorMessage);
    else
        reply.setValue(keepContainer(value.variant()));
    return argument;
}
