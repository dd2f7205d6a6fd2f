#pragma once

#include <QFileSystemWatcher>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

namespace ResourceCheck
{

/// Notices changes of everything in directories, and that a directory or a link on the way to it is replaced.
///
/// An event loop must run. Mounts are not noticed.
class TreeWatcher
{
public:
    /// The directories need not exist. Nothing is watched before renew(). `changed` is called 50 ms after the last of
    /// several changes.
    TreeWatcher(const QStringList& directories, const std::function<void()>& changed);

    /// Lists again what there is to watch. Later changes are noticed, so read the files after that. Returns why some of
    /// them are not noticed and what to do; null if all are.
    QString renew();

private:
    QVector<QPair<quint64, quint64>> identities() const;
    void note(const QString& path);

    QStringList roots;                                // absolute paths
    QVector<QPair<quint64, quint64>> knownIdentities; // of the roots
    std::unique_ptr<QFileSystemWatcher> watcher;
    QTimer delay;
};

} // namespace ResourceCheck
