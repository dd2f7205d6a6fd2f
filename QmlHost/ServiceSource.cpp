#include "QmlHost/ServiceSource.h"

#include "QmlHost/Interview.h"
#include "TarnisLibrary/TarnisDefinitions.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>

#include <limits>

namespace
{

constexpr int longestInterval = 30000;
constexpr int silenceMilliseconds = 5000; // as long as the library waits for an answer
constexpr int renewalMilliseconds = 100;
constexpr int withoutTimeLimit = std::numeric_limits<int>::max();

// The bus policy allows no other methods than those of the two interfaces, so one of them serves as the first call.
QDBusMessage firstCall()
{
    const QString object = QLatin1Char('/') + TarnisDefinitions::getModuleName() + QLatin1Char('/')
        + TarnisDefinitions::getObjectNameDeviceUiResources();
    return QDBusMessage::createMethodCall(QmlHost::Interview::busName(), object,
                                          TarnisDefinitions::getInterfaceNameDeviceUiResources(),
                                          QStringLiteral("getColorIniFilePath"));
}

} // namespace

namespace QmlHost
{

ServiceSource::ServiceSource(bool followsFiles)
    : areFilesFollowed(followsFiles)
    , watcher(this) // as children they move to the worker thread
    , silence(this)
    , renewal(this)
    , repetition(this)
{
    for (QTimer* timer : {&silence, &renewal, &repetition})
        timer->setSingleShot(true);
    silence.setInterval(silenceMilliseconds);
    renewal.setInterval(renewalMilliseconds);
    connect(&watcher, &DirectoryWatcher::changed, this, &ServiceSource::onFilesChanged);
    connect(&silence, &QTimer::timeout, this, &ServiceSource::reportSilence);
    connect(&renewal, &QTimer::timeout, this, &ServiceSource::renewAnswers);
    connect(&repetition, &QTimer::timeout, this, &ServiceSource::ask);
}

ServiceSource::~ServiceSource() = default;

void ServiceSource::start()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    busFailure = bus.isConnected()
        ? QStringLiteral("The connection to the D-Bus is lost")
        : QStringLiteral("There is no connection to the D-Bus (%1)").arg(bus.lastError().message());
    const auto* ownerWatcher =
        new QDBusServiceWatcher(Interview::busName(), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(ownerWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &ServiceSource::onOwnerChanged);
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
                QStringLiteral("Disconnected"), this, SLOT(reportBusFailure()));
    ask();
}

void ServiceSource::ask()
{
    if (call != nullptr || !mayAsk())
        return;
    call = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(firstCall(), withoutTimeLimit), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &ServiceSource::interview);
    silence.start();
}

bool ServiceSource::mayAsk()
{
    if (isStopRequested())
        return false;
    const bool isConnected = QDBusConnection::systemBus().isConnected();
    if (!isConnected)
        reportBusFailure();
    return isConnected;
}

void ServiceSource::interview()
{
    forgetCall();
    if (!mayAsk())
        return;
    watch(watchedDirectory); // before the reading, so that no change in between is missed
    QElapsedTimer duration;
    duration.start();
    Interview interview;
    interview.run(&Source::isStopRequested);
    if (isStopRequested())
        return;
    const QString problem = interview.problem();
    // A service that hangs between two questions is asked again soon.
    if (problem.isEmpty() || duration.hasExpired(silenceMilliseconds / 2))
        nextInterval = firstInterval;
    if (problem.isEmpty()) {
        repetition.stop();
    } else {
        repetition.start(nextInterval);
        nextInterval = qMin(2 * nextInterval, longestInterval);
    }
    Answers answers = interview.answers(areFilesFollowed);
    if (!interview.isReached()) {
        lastAnswers.renew(areFilesFollowed);
        answers.complete(lastAnswers);
    }
    const QString directory = answers.directory();
    if (!directory.isEmpty() && directory != watchedDirectory)
        watch(directory);
    report(answers, problem);
}

void ServiceSource::reportSilence()
{
    qWarning("%s", qPrintable(Interview::silence()));
    report(lastAnswers, Interview::silence()); // so that hosts that judge files keep what they have found
}

void ServiceSource::renewAnswers()
{
    watch(watchedDirectory);
    lastAnswers.renew(areFilesFollowed);
    report(lastAnswers, lastProblem);
}

void ServiceSource::report(const Answers& answers, const QString& problem)
{
    lastProblem = problem;
    Answers completed = answers;
    completed.complete(lastAnswers);
    lastAnswers = completed;
    Q_EMIT answered(answers, problem);
}

// It may be the sender of the signal that is handled, so it is deleted later.
void ServiceSource::forgetCall()
{
    silence.stop();
    renewal.stop();
    if (call == nullptr)
        return;
    call->disconnect(this);
    call->deleteLater();
    call = nullptr;
}

void ServiceSource::watch(const QString& directory)
{
    if (!areFilesFollowed || directory.isEmpty())
        return;
    watchedDirectory = directory;
    watcher.watchResources(ResourceFormat::Directory(directory));
}

void ServiceSource::onFilesChanged()
{
    ask();
    renewal.start();
}

void ServiceSource::onOwnerChanged(const QString& /*name*/, const QString& /*oldOwner*/, const QString& newOwner)
{
    if (newOwner.isEmpty())
        return;
    nextInterval = firstInterval;
    forgetCall();
    ask();
}

// Qt connects a process to each bus once.
void ServiceSource::reportBusFailure()
{
    forgetCall();
    repetition.stop();
    const QString advice = QStringLiteral(", and this process cannot reconnect to it; restart the process.");
    report(lastAnswers, busFailure + advice);
}

} // namespace QmlHost
