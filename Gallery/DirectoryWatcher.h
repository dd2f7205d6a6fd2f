#pragma once

#include <QObject>

class QSocketNotifier;

/// Tells when a file below a directory was written, replaced, renamed or removed. Qt's own watcher would need a watch
/// for each of thousands of files, and loses those that an editor replaces.
class DirectoryWatcher : public QObject
{
    Q_OBJECT

public:
    DirectoryWatcher();
    ~DirectoryWatcher() override;

    /// Watches this directory and those below it, and none that it watched before.
    void watch(const QString& directory);

Q_SIGNALS:
    void changed();

private:
    void stop();
    void readEvents();

    int descriptor = -1;
    QSocketNotifier* notifier = nullptr; // child of this object
};
