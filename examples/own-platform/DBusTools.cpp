// The platform's D-Bus classes behind the installed headers.

#include "Common/DBusTools/DBusConnectorBase.h"

#include <QDBusConnection>

namespace
{

class RemoteObject : public QDBusAbstractInterface
{
public:
    RemoteObject(const QString& service, const QString& path, const QByteArray& interfaceName,
                 const QDBusConnection& connection, QObject* parent)
        : QDBusAbstractInterface(service, path, interfaceName.constData(), connection, parent)
    {
        setTimeout(5000);
    }
};

} // namespace

ErrorContainer::ErrorContainer(int code, const QString& message)
    : errorCode(code)
    , errorMessage(message)
{
}

int ErrorContainer::getDefaultErrorCode()
{
    return -1;
}

QString ErrorContainer::getErrorMessage() const
{
    return errorMessage;
}

void DBusReply::setError(int errorCode, const QString& errorMessage)
{
    error = true;
    errorContainer = ErrorContainer(errorCode, errorMessage);
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
    value = replyValue;
}

QVariant DBusReply::getValue() const
{
    return value;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusReply& reply)
{
    if (argument.currentSignature() != "(bisv)") {
        reply.setError(ErrorContainer::getDefaultErrorCode(), "not a reply record");
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
        reply.setValue(value.variant());
    return argument;
}

DBusConnectorBase::DBusConnectorBase(const QString& moduleName, const QString& objectName, const QString& interfaceName,
                                     QObject* parent, ConnectionMode connectionMode)
    : QObject(parent)
    , dBusInterface(new RemoteObject(
          "Module." + moduleName, "/" + moduleName + "/" + objectName, interfaceName.toLatin1(),
          connectionMode == SystemBus ? QDBusConnection::systemBus() : QDBusConnection::sessionBus(), this))
{
}

DBusConnectorBase::~DBusConnectorBase() = default;

void DBusConnectorBase::connectServices() { }

void DBusConnectorBase::disconnectServices() { }

bool DBusConnectorBase::isDBusInterfaceValid() const
{
    return dBusInterface->connection().isConnected();
}

QString DBusConnectorBase::getInvalidDBusInterfaceMessage() const
{
    return isDBusInterfaceValid() ? QString() : "no connection to the D-Bus";
}
