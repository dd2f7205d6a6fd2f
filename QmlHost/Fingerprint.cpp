#include "QmlHost/Fingerprint.h"

#include <QDataStream>
#include <QFile>

#include <sys/stat.h>

namespace QmlHost::Fingerprint
{

QByteArray of(const QStringList& paths)
{
    QByteArray fingerprint;
    QDataStream stream(&fingerprint, QIODevice::WriteOnly);
    stream << paths.size();
    for (const QString& path : paths) {
        struct stat status = {};
        const bool exists = stat(QFile::encodeName(path).constData(), &status) == 0;
        stream << path << exists << quint64(status.st_dev) << quint64(status.st_ino) << qint64(status.st_size)
               << qint64(status.st_mtim.tv_sec) << qint64(status.st_mtim.tv_nsec);
    }
    return fingerprint;
}

} // namespace QmlHost::Fingerprint
