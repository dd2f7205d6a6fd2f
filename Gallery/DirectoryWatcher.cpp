#include "Gallery/DirectoryWatcher.h"

#include <QDirIterator>
#include <QFile>
#include <QSocketNotifier>

#include <sys/inotify.h>
#include <unistd.h>

namespace Gallery
{

DirectoryWatcher::DirectoryWatcher() = default;

DirectoryWatcher::~DirectoryWatcher()
{
    stop();
}

void DirectoryWatcher::watch(const QString& directory)
{
    stop();
    descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (descriptor < 0 || directory.isEmpty())
        return;
    constexpr quint32 events = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_CREATE | IN_ATTRIB;
    inotify_add_watch(descriptor, QFile::encodeName(directory).constData(), events);
    QDirIterator below(directory, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (below.hasNext())
        inotify_add_watch(descriptor, QFile::encodeName(below.next()).constData(), events);
    notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &DirectoryWatcher::readEvents);
}

void DirectoryWatcher::stop()
{
    delete notifier;
    notifier = nullptr;
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

void DirectoryWatcher::readEvents()
{
    char events[4096];
    while (::read(descriptor, events, sizeof(events)) > 0) { }
    Q_EMIT changed();
}

} // namespace Gallery
