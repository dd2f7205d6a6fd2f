#pragma once

#include "QmlHost/DirectoryWatcher.h"
#include "QmlHost/Source.h"

#include <QTimer>

namespace QmlHost
{

/// Asks the Tarnis module over the system bus: at the start and whenever its bus name gets another owner. A failed
/// question is repeated after 0.5 s, and then at intervals that double up to 30 s.
class ServiceSource : public Source
{
    Q_OBJECT

public:
    /// With `followsFiles`, it also asks when a file of the resource directory changes.
    explicit ServiceSource(bool followsFiles);
    ~ServiceSource() override;

    void start() override;
    void ask() override;

private:
    Q_SLOT void reportBusFailure(); // QDBusConnection connects to slots by name only
    void onOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);

    static constexpr int firstInterval = 500; // milliseconds

    void watch(const QString& directory);

    const bool areFilesFollowed;
    QString watchedDirectory;
    DirectoryWatcher watcher;
    QString busFailure; // what to report when the bus is not connected
    QTimer repetition;
    int nextInterval = firstInterval;
};

} // namespace QmlHost
