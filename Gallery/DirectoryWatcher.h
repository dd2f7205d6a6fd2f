#pragma once

#include <QObject>

class QSocketNotifier;

namespace Gallery
{

/// Reports changes of the files below a directory. Qt's own watcher needs a watch for each of thousands of files and
/// loses the files that an editor replaces.
class DirectoryWatcher : public QObject
{
    Q_OBJECT

public:
    DirectoryWatcher();
    ~DirectoryWatcher() override;

    /// Watches this directory and its subdirectories instead of those that it watched before.
    void watch(const QString& directory);

Q_SIGNALS:
    /// A file was written, replaced, renamed or removed.
    void changed();

private:
    void stop();
    void readEvents();

    int descriptor = -1;
    QSocketNotifier* notifier = nullptr; // child of this object
};

} // namespace Gallery
