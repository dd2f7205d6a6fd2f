#include "Common/FileTools/RegularFile.h"

#include <QFile>
#include <QFileInfo>

QByteArray RegularFile::readAll(const QString& path, QString& reason)
{
    reason = QString();
    if (path.isEmpty()) {
        reason = QStringLiteral("No path");
        return QByteArray();
    }
    // Opening a FIFO would wait for its writer, on the thread that draws the screen.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        reason = QStringLiteral("Not a regular file");
        return QByteArray();
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
        return QByteArray();
    }
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        reason = file.errorString();
        return QByteArray();
    }
    return content;
}
