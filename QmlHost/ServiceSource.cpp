#include "QmlHost/ServiceSource.h"

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"
#include "TarnisLibrary/TarnisDefinitions.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QFileInfo>

#include <functional>

namespace
{

constexpr int longestInterval = 30000;

QString busName()
{
    return QStringLiteral("Module.") + TarnisDefinitions::getModuleName();
}

// The five questions to the service and its answers.
class Interview
{
public:
    Interview()
    {
        const auto noteFailure = [this] { isReached = false; };
        QObject::connect(&resources, &DBusConnectorBase::dBusConnectionError, noteFailure);
        QObject::connect(&iconProvider, &DBusConnectorBase::dBusConnectionError, noteFailure);
    }

    // After a call without a reply the rest is not asked: each call may block for seconds.
    void run(const std::function<bool()>& isStopRequested)
    {
        const std::function<void()> questions[] = {
            [this] { colorFile = resources.getColorIniFilePath(); },
            [this] { fontFile = resources.getFontIniFilePath(); },
            [this] { displaySizes = resources.getSupportedDisplaySizes(); },
            [this] { iconFolder = iconProvider.getIconResourcesBasePath(); },
            [this] { mappingTable = iconProvider.getIconResourcesMappingTable(QString()); },
        };
        for (const auto& question : questions) {
            if (isReached && !isStopRequested())
                question();
        }
    }

    // Where the files are; empty if there is no answer.
    QString directory() const { return colorFile.isEmpty() ? QString() : QFileInfo(colorFile).path(); }

    QmlHost::Answers answers(bool includesIconFiles) const
    {
        QmlHost::Answers answers;
        answers.setColorFile(colorFile);
        answers.setFontFile(fontFile);
        answers.setDisplaySizes(displaySizes);
        answers.setIcons(iconFolder, mappingTable, includesIconFiles);
        if (!colorFile.isEmpty())
            answers.setTexts(directory());
        return answers;
    }

    QString problem() const
    {
        if (!isReached)
            return QStringLiteral("The service %1 does not answer; it is asked again until it does.").arg(busName());
        const QPair<bool, QString> parts[] = {
            {colorFile.isEmpty(), QStringLiteral("the color file")},
            {fontFile.isEmpty(), QStringLiteral("the font file")},
            {displaySizes.isEmpty(), QStringLiteral("the display sizes")},
            {iconFolder.isEmpty(), QStringLiteral("the icon directory")},
            {mappingTable.isEmpty(), QStringLiteral("the icon mapping table")},
        };
        QStringList missing;
        for (const auto& [isMissing, name] : parts) {
            if (isMissing)
                missing.append(name);
        }
        if (missing.isEmpty())
            return QString();
        return QStringLiteral("The service %1 does not provide %2; the log contains the reasons.")
            .arg(busName(), missing.join(QStringLiteral(", ")));
    }

private:
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector iconProvider;
    bool isReached = true;
    QString colorFile;
    QString fontFile;
    QList<QPair<QSize, QString>> displaySizes;
    QString iconFolder;
    QString mappingTable;
};

} // namespace

namespace QmlHost
{

ServiceSource::ServiceSource(bool followsFiles)
    : areFilesFollowed(followsFiles)
    , watcher(this) // as children they move to the worker thread
    , repetition(this)
{
    connect(&watcher, &DirectoryWatcher::changed, this, &ServiceSource::ask);
    repetition.setSingleShot(true);
    connect(&repetition, &QTimer::timeout, this, &ServiceSource::ask);
}

ServiceSource::~ServiceSource() = default;

void ServiceSource::start()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    busFailure = bus.isConnected()
        ? QStringLiteral("The connection to the D-Bus is lost")
        : QStringLiteral("There is no connection to the D-Bus (%1)").arg(bus.lastError().message());
    const auto* ownerWatcher = new QDBusServiceWatcher(busName(), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(ownerWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &ServiceSource::onOwnerChanged);
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
                QStringLiteral("Disconnected"), this, SLOT(reportBusFailure()));
    ask();
}

void ServiceSource::ask()
{
    if (isStopRequested())
        return;
    if (!QDBusConnection::systemBus().isConnected()) {
        reportBusFailure();
        return;
    }
    watch(watchedDirectory); // before the reading, so that no change in between is missed
    Interview interview;
    interview.run(&Source::isStopRequested);
    if (isStopRequested())
        return;
    const QString problem = interview.problem();
    if (problem.isEmpty()) {
        repetition.stop();
        nextInterval = firstInterval;
    } else {
        repetition.start(nextInterval);
        nextInterval = qMin(2 * nextInterval, longestInterval);
    }
    const QString directory = interview.directory();
    if (!directory.isEmpty() && directory != watchedDirectory)
        watch(directory);
    Q_EMIT answered(interview.answers(areFilesFollowed), problem);
}

void ServiceSource::watch(const QString& directory)
{
    if (!areFilesFollowed || directory.isEmpty())
        return;
    watchedDirectory = directory;
    watcher.watchResources(ResourceFormat::Directory(directory));
}

void ServiceSource::onOwnerChanged(const QString& /*name*/, const QString& /*oldOwner*/, const QString& newOwner)
{
    if (newOwner.isEmpty())
        return;
    nextInterval = firstInterval;
    ask();
}

// Qt connects a process to each bus once.
void ServiceSource::reportBusFailure()
{
    repetition.stop();
    const QString advice = QStringLiteral(", and this process cannot reconnect to it; restart the process.");
    Q_EMIT answered(Answers(), busFailure + advice);
}

} // namespace QmlHost
