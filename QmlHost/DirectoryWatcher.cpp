#include "QmlHost/DirectoryWatcher.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace
{

constexpr int delayMilliseconds = 100;
const QByteArray everyEntry;
constexpr int mostLinks = 40; // as many as the kernel follows

} // namespace

namespace QmlHost
{

DirectoryWatcher::DirectoryWatcher(QObject* parent)
    : QObject(parent)
    , mounts(QStringLiteral("/proc/self/mountinfo"), this)
    , delay(this) // as children they move along to another thread
{
    delay.setSingleShot(true);
    delay.setInterval(delayMilliseconds);
    connect(&delay, &QTimer::timeout, this, &DirectoryWatcher::changed);
}

DirectoryWatcher::~DirectoryWatcher()
{
    notifier.reset();
    if (descriptor >= 0)
        ::close(descriptor);
}

void DirectoryWatcher::watchResources(const ResourceFormat::Directory& directory)
{
    clear();
    QStringList files{directory.colorFile(), directory.fontFile(), directory.mappingTable()};
    for (const QFileInfo& file : directory.dimensionFiles() + directory.languageFiles())
        files.append(file.filePath());
    for (const QString& file : qAsConst(files))
        watchPath(file);
    const QString iconFolder = directory.iconFolder();
    QStringList folders{directory.path(), directory.dimensionFolder(), directory.textFolder(), iconFolder};
    constexpr auto kinds = QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden;
    QDirIterator iconFolders(iconFolder, kinds, QDirIterator::Subdirectories);
    while (iconFolders.hasNext())
        folders.append(iconFolders.next());
    for (const QString& folder : qAsConst(folders))
        watch(folder, everyEntry);
}

// The file does not become readable, but has an exceptional condition, when its content changes. A file that is opened
// later reports later changes only, so it stays open.
void DirectoryWatcher::watchMounts()
{
    if (mounts.isOpen() || !mounts.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    mountNotifier = std::make_unique<QSocketNotifier>(mounts.handle(), QSocketNotifier::Exception);
    connect(mountNotifier.get(), &QSocketNotifier::activated, this, &DirectoryWatcher::noteChange);
}

void DirectoryWatcher::noteChange()
{
    if (!delay.isActive())
        delay.start();
}

void DirectoryWatcher::watchFiles(const QStringList& files)
{
    clear();
    for (const QString& file : files) {
        watchPath(file);
        watch(QFileInfo(file).path(), everyEntry);
    }
}

void DirectoryWatcher::clear()
{
    watchMounts();
    notifier.reset();
    if (descriptor >= 0)
        ::close(descriptor);
    names.clear();
    descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (descriptor < 0) {
        reason = QString::fromLocal8Bit(strerror(errno));
        return;
    }
    reason = QString();
    notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &DirectoryWatcher::readEvents);
}

void DirectoryWatcher::watchPath(const QString& path)
{
    QStringList waiting(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    for (int link = 0; !waiting.isEmpty() && link < mostLinks; ++link) {
        QString place;
        const QStringList components = waiting.takeFirst().split(QLatin1Char('/'), Qt::SkipEmptyParts);
        for (const QString& name : components) {
            watch(place + QLatin1Char('/'), QFile::encodeName(name));
            place += QLatin1Char('/') + name;
            // Makes the target of a link absolute.
            const QString target = QFileInfo(place).symLinkTarget();
            if (!target.isEmpty())
                waiting.append(QDir::cleanPath(target));
        }
    }
}

QString DirectoryWatcher::problem() const
{
    return reason;
}

void DirectoryWatcher::watch(const QString& directory, const QByteArray& name)
{
    constexpr quint32 events = IN_CLOSE_WRITE | IN_MOVE | IN_CREATE | IN_DELETE | IN_ATTRIB | IN_ONLYDIR;
    const int watch = inotify_add_watch(descriptor, QFile::encodeName(directory).constData(), events);
    if (watch >= 0)
        names[watch].insert(name);
    else if (errno == ENOSPC)
        reason = QString::fromLocal8Bit(strerror(errno));
}

void DirectoryWatcher::readEvents()
{
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        const ssize_t size = ::read(descriptor, buffer, sizeof(buffer));
        if (size <= 0)
            return;
        for (const char* position = buffer; position < buffer + size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(position);
            position += sizeof(inotify_event) + event->len;
            const QSet<QByteArray> wanted = names.value(event->wd);
            const QByteArray name = event->len > 0 ? QByteArray(event->name) : QByteArray();
            const bool isOverflow = (event->mask & IN_Q_OVERFLOW) != 0;
            if (isOverflow || wanted.contains(name) || wanted.contains(everyEntry))
                noteChange();
        }
    }
}

} // namespace QmlHost
