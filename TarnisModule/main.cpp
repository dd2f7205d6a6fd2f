#include "TarnisModule/DeviceUiResources.h"
#include "TarnisModule/IconProvider.h"
#include "TarnisModule/Log.h"
#include "TarnisModule/Termination.h"
#include "deviceuiresourcesadaptor.h"
#include "iconprovideradaptor.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>
#include <QDir>

#include <cstdio>

namespace
{

enum ExitStatus { Success = 0, WrongUsage = 2, NoDirectory = 3, NoBus = 4, NoName = 5 };

int fail(ExitStatus status, const QString& message)
{
    TarnisModule::Log::write(message);
    return status;
}

int publish(const ResourceFormat::Directory& directory, QDBusConnection bus)
{
    if (!bus.isConnected())
        return fail(NoBus, QStringLiteral("no connection to the D-Bus: ") + bus.lastError().message());
    TarnisModule::DeviceUiResources deviceUiResources(directory);
    TarnisModule::IconProvider iconProvider(directory);
    new DeviceUiResourcesAdaptor(&deviceUiResources);
    new IconProviderAdaptor(&iconProvider);
    bus.registerObject(QStringLiteral("/Tarnis/DeviceUiResources"), &deviceUiResources);
    bus.registerObject(QStringLiteral("/Tarnis/IconProvider"), &iconProvider);
    // The name comes last: the bus holds back calls until the name is owned, and they must find the objects.
    const QString name = QStringLiteral("Module.Tarnis");
    if (!bus.registerService(name)) {
        const QString reason =
            bus.lastError().isValid() ? bus.lastError().message() : QStringLiteral("another process owns it");
        return fail(NoName, QStringLiteral("cannot own the bus name %1: %2").arg(name, reason));
    }
    // Without the bus nobody can reach the service.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
                QStringLiteral("Disconnected"), QCoreApplication::instance(), SLOT(quit()));
    std::printf("%s publishes %s\n", qPrintable(name), qPrintable(directory.path()));
    std::fflush(stdout);
    if (bus.isConnected()) // it may have been lost before the signal was connected
        QCoreApplication::exec();
    return bus.isConnected() ? Success : fail(NoBus, QStringLiteral("lost the connection to the D-Bus"));
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TARNIS_VERSION));
    TarnisModule::Termination::install(application);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Publishes a resource directory on the D-Bus as Module.Tarnis.\n\n"
                       "Exit status: 0 after SIGTERM or SIGINT, 2 wrong usage, 3 no such directory, 4 no bus, "
                       "5 the bus name is already taken or not allowed."));
    const QCommandLineOption resources(QStringLiteral("resources"), QStringLiteral("The resource directory."),
                                       QStringLiteral("DIR"));
    const QCommandLineOption session(QStringLiteral("session"),
                                     QStringLiteral("Use the session bus instead of the system bus."));
    parser.addOptions({resources, session});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(WrongUsage, parser.errorText());
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty())
        return fail(WrongUsage, QStringLiteral("unexpected argument ") + parser.positionalArguments().constFirst());
    if (!parser.isSet(resources))
        return fail(WrongUsage, QStringLiteral("--resources DIR is missing"));

    const QDir directory(parser.value(resources));
    if (parser.value(resources).isEmpty() || !directory.exists())
        return fail(NoDirectory, QStringLiteral("no such directory: ") + parser.value(resources));
    return publish(ResourceFormat::Directory(directory.absolutePath()),
                   parser.isSet(session) ? QDBusConnection::sessionBus() : QDBusConnection::systemBus());
}
