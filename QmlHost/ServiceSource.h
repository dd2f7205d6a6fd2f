#pragma once

#include "QmlHost/DirectoryWatcher.h"
#include "QmlHost/Source.h"

#include <QTimer>

class QDBusPendingCallWatcher;

namespace QmlHost
{

/// Asks the Tarnis module over the system bus: at the start and whenever its bus name gets another owner. A failed
/// question is repeated after 0.5 s, and then at intervals that double up to 30 s.
///
/// Each round begins with one call that has no time limit and blocks nothing. Its answer shows that the service handles
/// calls, so the blocking questions follow at once. A service that hangs is therefore asked as soon as it continues,
/// and neither the changes of files nor the end of the host wait for it. It is reported after 5 s.
class ServiceSource : public Source
{
    Q_OBJECT

public:
    /// With `followsFiles`, it also asks when a file of the resource directory changes. If there is no answer within
    /// 100 ms then, the last answers are given again with the new state of their files.
    explicit ServiceSource(bool followsFiles);
    ~ServiceSource() override;

    void start() override;
    void ask() override;

private:
    Q_SLOT void reportBusFailure(); // QDBusConnection connects to slots by name only
    void onOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    void onFilesChanged();

    bool mayAsk();
    void interview();
    void reportSilence();
    void renewAnswers();
    void report(const Answers& answers, const QString& problem);
    void forgetCall();
    void watch(const QString& directory);

    static constexpr int firstInterval = 500; // milliseconds

    const bool areFilesFollowed;
    QString watchedDirectory;
    DirectoryWatcher watcher;
    Answers lastAnswers;
    QString lastProblem;
    QString busFailure;                      // what to report when the bus is not connected
    QDBusPendingCallWatcher* call = nullptr; // child of this object; null if the service does not owe an answer
    QTimer silence;                          // since the call
    QTimer renewal;                          // since the change of a file
    QTimer repetition;
    int nextInterval = firstInterval;
};

} // namespace QmlHost
