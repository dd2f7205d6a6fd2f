#include "Common/DBusTools/DBusConnectorBase.h"

#include <QDBusConnection>
#include <QDBusError>

namespace
{

// Qt takes an empty interface name to mean any interface, but rejects a single dot.
QByteArray strictInterfaceName(const QString& name)
{
    return name.isEmpty() ? QByteArrayLiteral(".") : name.toLatin1();
}

constexpr int callTimeoutMilliseconds = 5000;

// QDBusInterface would first ask the service for its introspection data, which is one more blocking call.
class RemoteObject : public QDBusAbstractInterface
{
public:
    RemoteObject(const QString& service, const QString& path, const QByteArray& interfaceName,
                 const QDBusConnection& connection, QObject* parent)
        : QDBusAbstractInterface(service, path, interfaceName.constData(), connection, parent)
    {
        setTimeout(callTimeoutMilliseconds);
    }
};

QDBusConnection busConnection(DBusConnectorBase::ConnectionMode mode)
{
    return mode == DBusConnectorBase::SystemBus ? QDBusConnection::systemBus() : QDBusConnection::sessionBus();
}

bool isAddressError(const QDBusError& error)
{
    return error.type() == QDBusError::InvalidService || error.type() == QDBusError::InvalidObjectPath
        || error.type() == QDBusError::InvalidInterface;
}

} // namespace

DBusConnectorBase::DBusConnectorBase(const QString& moduleName, const QString& objectName, const QString& interfaceName,
                                     QObject* parent, ConnectionMode connectionMode)
    : QObject(parent)
    , dBusInterface(new RemoteObject(QStringLiteral("Module.") + moduleName,
                                     QLatin1Char('/') + moduleName + QLatin1Char('/') + objectName,
                                     strictInterfaceName(interfaceName), busConnection(connectionMode), this))
{
    if (isAddressError(dBusInterface->lastError()))
        addressError = dBusInterface->lastError().message();
}

DBusConnectorBase::~DBusConnectorBase() = default;

void DBusConnectorBase::connectServices() { }

void DBusConnectorBase::disconnectServices() { }

bool DBusConnectorBase::isDBusInterfaceValid() const
{
    return addressError.isNull() && dBusInterface->connection().isConnected();
}

QString DBusConnectorBase::getInvalidDBusInterfaceMessage() const
{
    if (!addressError.isNull())
        return addressError;
    const QDBusConnection connection = dBusInterface->connection();
    if (connection.isConnected())
        return QString();
    // Qt has no error for a connection that existed: the bus has ended or restarted.
    const QString error = connection.lastError().message();
    return QStringLiteral("No connection to the D-Bus (%1): %2")
        .arg(connection.name(), error.isEmpty() ? QStringLiteral("The connection is lost") : error);
}
