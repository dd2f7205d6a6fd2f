#pragma once

#include "Common/DBusTools/DBusReply.h"

#include <QDBusAbstractInterface>
#include <QDBusReply>
#include <QDebug>
#include <QObject>

#include <utility>

/// Base of the D-Bus clients: one remote object of one module, called synchronously.
///
/// Use it from the thread that owns it. Nothing here throws.
class Q_DECL_EXPORT DBusConnectorBase : public QObject
{
    Q_OBJECT

public:
    /// The bus of the remote object.
    enum ConnectionMode { SystemBus = 0, SessionBus = 1 };

    /// Addresses the object `/moduleName/objectName` with the interface `interfaceName` at the bus name
    /// `Module.moduleName`. Connects to the bus if the process has not done so yet, and asks it who owns the name. The
    /// service is neither started nor called.
    DBusConnectorBase(const QString& moduleName, const QString& objectName, const QString& interfaceName,
                      QObject* parent, ConnectionMode connectionMode);
    ~DBusConnectorBase() override;

    /// Derived classes may connect to signals of the remote object here. The base does nothing and does not call it.
    virtual void connectServices();

    /// Reverses connectServices(). The base does nothing and does not call it.
    virtual void disconnectServices();

    /// False if the bus is not connected or the three names do not form a legal address. It stays true if the service
    /// is not running: the bus may start it on the first call.
    bool isDBusInterfaceValid() const;

    /// Why isDBusInterfaceValid() is false; empty if it is true.
    QString getInvalidDBusInterfaceMessage() const;

    /// Calls a method of the remote object and blocks until its answer arrives, for at most 5 s. The method must answer
    /// with one variant that contains a reply record.
    ///
    /// If the interface is not valid, the call fails or the answer is not a variant, the reply is an error with the
    /// default error code. Its text is logged as two warnings, and dBusConnectionError() is emitted once. An error in
    /// the record is returned and not logged.
    template <typename... Arguments>
    Q_DECL_HIDDEN DBusReply syncCallHelper(const QString& methodName, Arguments&&... arguments) const;

Q_SIGNALS:
    /// A call failed without a reply record: no valid interface, no answer, or an answer that is not a variant.
    void dBusConnectionError() const;

private:
    QDBusAbstractInterface* dBusInterface; // child of this object
    QString addressError;
};

// Hidden in every binary that instantiates it: a weak export could be replaced by the copy of another binary, which may
// be compiled with other log context settings.
template <typename... Arguments>
DBusReply DBusConnectorBase::syncCallHelper(const QString& methodName, Arguments&&... arguments) const
{
    DBusReply result;
    QString text;
    if (isDBusInterfaceValid()) {
        const QDBusReply<QDBusVariant> answer =
            dBusInterface->call(QDBus::AutoDetect, methodName, std::forward<Arguments>(arguments)...);
        if (!answer.error().isValid()) {
            qvariant_cast<QDBusArgument>(answer.value().variant()) >> result;
            return result;
        }
        text = QStringLiteral("D-Bus call to method ") + methodName + QStringLiteral(" failed: ")
            + answer.error().message() + QLatin1Char('!');
    } else {
        text = getInvalidDBusInterfaceMessage();
    }
    // Each failed call leaves two records.
    qWarning() << text;
    qWarning() << text;
    result.setError(ErrorContainer::getDefaultErrorCode(), text);
    Q_EMIT dBusConnectionError();
    return result;
}
