#pragma once

#include "ResourceFormat/Directory.h"

#include <QFile>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>

class QSocketNotifier;

namespace QmlHost
{

/// Reports changes of files: files that are written in place, replaced or removed, and directories and symbolic links
/// on the way to them that are replaced. It watches directories only, because editors may replace a file to save it.
///
/// The kernel reports no mounts below a watched directory. Therefore every mount and unmount of the system, wherever it
/// is, counts as a change.
class DirectoryWatcher : public QObject
{
    Q_OBJECT

public:
    explicit DirectoryWatcher(QObject* parent);
    ~DirectoryWatcher() override;

    /// Watches the files of this directory, whether or not it exists, instead of those that it watched before: each
    /// directory and each symbolic link on the way to them. Call it on the thread that watches.
    void watchResources(const ResourceFormat::Directory& directory);

    /// The same for these files, whether or not they exist, and all entries of the folders that they are in.
    void watchFiles(const QStringList& files);

    /// Why changes are not noticed; null if they are.
    QString problem() const;

Q_SIGNALS:
    /// Emitted once for all changes within 100 ms, at their end.
    void changed();

private:
    void watchMounts();
    void noteChange();
    void clear();
    void watchPath(const QString& path);
    void watch(const QString& directory, const QByteArray& name);
    void readEvents();

    int descriptor = -1;
    std::unique_ptr<QSocketNotifier> notifier;
    QHash<int, QSet<QByteArray>> names; // what matters in each watched directory; the empty name is every entry
    QString reason;
    QFile mounts;
    std::unique_ptr<QSocketNotifier> mountNotifier;
    QTimer delay;
};

} // namespace QmlHost
