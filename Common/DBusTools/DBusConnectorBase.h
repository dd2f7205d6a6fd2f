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
    /// The bus on which the remote object is looked for.
    enum ConnectionMode { SystemBus = 0, SessionBus = 1 };

    /// Addresses the object `/moduleName/objectName` with the interface `interfaceName` of the bus name
    /// `Module.moduleName`. Connects to the bus when the process has not done so yet, asks it who owns the name, and
    /// neither starts nor calls the service.
    DBusConnectorBase(const QString& moduleName, const QString& objectName, const QString& interfaceName,
                      QObject* parent, ConnectionMode connectionMode);
    ~DBusConnectorBase() override;

    /// For derived classes: connects to the signals of the remote object. Does nothing here, and nothing calls it.
    virtual void connectServices();

    /// Undoes connectServices(). Does nothing here, and nothing calls it.
    virtual void disconnectServices();

    /// False when the bus is not connected or the three names make no legal address. A service that is merely not
    /// running leaves it true: the bus may start it on the first call.
    bool isDBusInterfaceValid() const;

    /// Why isDBusInterfaceValid() is false; empty while it is true.
    QString getInvalidDBusInterfaceMessage() const;

    /// Calls a method of the remote object and blocks until its answer arrives, for 5 s at the most. The method must
    /// answer with one variant that holds a reply record.
    ///
    /// Without a usable interface, and after a call that failed or was not answered with a variant, the reply is an
    /// error with the default error code; its text is logged as two warnings, and dBusConnectionError() is emitted
    /// once. An error within the record is returned and not logged.
    template <typename... Arguments>
    Q_DECL_HIDDEN DBusReply syncCallHelper(const QString& methodName, Arguments&&... arguments) const;

Q_SIGNALS:
    /// A call failed on this side of the record: no usable interface, no answer, or no variant in it.
    void dBusConnectionError() const;

private:
    QDBusAbstractInterface* dBusInterface; // child of this object
    QString addressError;
};

// Hidden in every binary that instantiates it: a weak export would give way to the copy of another binary, compiled
// with other settings of the log context.
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
