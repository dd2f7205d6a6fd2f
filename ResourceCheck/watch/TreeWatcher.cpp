#include "ResourceCheck/watch/TreeWatcher.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <sys/stat.h>

namespace ResourceCheck
{

namespace
{

constexpr int delayMilliseconds = 50;

QStringList ancestorsOf(const QString& path)
{
    QStringList ancestors;
    for (int slash = path.lastIndexOf(QLatin1Char('/')); slash >= 0 && path.size() > 1;
         slash = slash > 0 ? path.lastIndexOf(QLatin1Char('/'), slash - 1) : -1)
        ancestors.append(slash == 0 ? QStringLiteral("/") : path.left(slash));
    return ancestors;
}

QStringList contentOf(const QString& directory)
{
    QStringList paths;
    constexpr auto kinds = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (QDirIterator item(directory, kinds, QDirIterator::Subdirectories); item.hasNext();)
        paths.append(item.next());
    return paths;
}

} // namespace

TreeWatcher::TreeWatcher(const QStringList& directories, const std::function<void()>& changed)
{
    std::transform(directories.begin(), directories.end(), std::back_inserter(roots),
                   [](const QString& directory) { return QDir::cleanPath(QFileInfo(directory).absoluteFilePath()); });
    delay.setSingleShot(true);
    delay.setInterval(delayMilliseconds);
    QObject::connect(&delay, &QTimer::timeout, &delay, changed);
}

// A watch follows the file and not its path. Therefore all watches are made again.
QString TreeWatcher::renew()
{
    QStringList paths;
    for (const QString& root : qAsConst(roots)) {
        const QString real = QFileInfo(root).canonicalFilePath();
        paths += ancestorsOf(root) + ancestorsOf(real) + QStringList(root) + contentOf(root);
    }
    paths.removeDuplicates();
    paths.erase(std::remove_if(paths.begin(), paths.end(), [](const QString& path) { return !QFile::exists(path); }),
                paths.end());
    watcher = std::make_unique<QFileSystemWatcher>();
    QObject::connect(watcher.get(), &QFileSystemWatcher::fileChanged, &delay,
                     [this](const QString& path) { note(path); });
    QObject::connect(watcher.get(), &QFileSystemWatcher::directoryChanged, &delay,
                     [this](const QString& path) { note(path); });
    knownIdentities = identities();
    const QStringList failed = watcher->addPaths(paths);
    const auto lost =
        std::find_if(failed.begin(), failed.end(), [](const QString& path) { return QFileInfo(path).isReadable(); });
    return lost == failed.end()
        ? QString()
        : QStringLiteral("cannot watch \"%1\"; raise the limit fs.inotify.max_user_watches").arg(*lost);
}

// The device and the inode of each root; 0 if it does not exist.
QVector<QPair<quint64, quint64>> TreeWatcher::identities() const
{
    QVector<QPair<quint64, quint64>> list;
    for (const QString& root : roots) {
        struct stat status = {};
        const bool exists = stat(QFile::encodeName(root).constData(), &status) == 0;
        list.append(exists ? qMakePair<quint64, quint64>(status.st_dev, status.st_ino) : QPair<quint64, quint64>());
    }
    return list;
}

// Entries of the directories on the way to a root come and go all the time.
void TreeWatcher::note(const QString& path)
{
    const bool isInside = std::any_of(roots.begin(), roots.end(), [&path](const QString& root) {
        return path == root || path.startsWith(root + QLatin1Char('/'));
    });
    if (isInside || identities() != knownIdentities)
        delay.start();
}

} // namespace ResourceCheck
