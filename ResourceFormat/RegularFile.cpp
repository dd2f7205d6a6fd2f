#include "ResourceFormat/RegularFile.h"

#include "ResourceFormat/Descriptor.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace ResourceFormat
{

namespace
{

// Returns 0 or the error number.
int readToEnd(int descriptor, off_t expectedSize, QByteArray& content)
{
    content.resize(static_cast<int>(expectedSize) + 1); // one more, to notice the end
    int size = 0;
    for (;;) {
        const ssize_t count = read(descriptor, content.data() + size, static_cast<size_t>(content.size() - size));
        if (count < 0 && errno != EINTR)
            return errno;
        if (count == 0)
            break;
        size += count > 0 ? static_cast<int>(count) : 0;
        if (size > RegularFile::sizeLimit)
            return EFBIG;
        if (size == content.size())
            content.resize(size + size / 2 + 1); // the file has grown
    }
    content.truncate(size);
    return 0;
}

QString systemMessage(int error)
{
    return QString::fromLocal8Bit(strerror(error));
}

// Why the file with this result of stat() or fstat() cannot be read; null if it can. A result below 0 leaves the error
// in errno.
QString problemOf(int result, const struct stat& status)
{
    if (result != 0)
        return systemMessage(errno);
    if (!S_ISREG(status.st_mode))
        return QStringLiteral("Not a regular file");
    if (status.st_size <= RegularFile::sizeLimit)
        return QString();
    return QStringLiteral("The file has %1 bytes, which is above the limit of %2 bytes")
        .arg(status.st_size)
        .arg(RegularFile::sizeLimit);
}

QString problemOfPath(const QString& path)
{
    if (path.isEmpty())
        return QStringLiteral("The path is empty");
    if (path.contains(QChar::Null))
        return QStringLiteral("The path contains a null character");
    struct stat status = {};
    return problemOf(stat(QFile::encodeName(path).constData(), &status), status);
}

QString problemOf(const Descriptor& file, struct stat& status)
{
    return file.number() < 0 ? file.problem() : problemOf(fstat(file.number(), &status), status);
}

// `reason` says why the file must not be read; null if it may be.
QByteArray readOpenFile(const Descriptor& file, QString& reason)
{
    struct stat status = {};
    if (reason.isNull())
        reason = problemOf(file, status);
    if (!reason.isNull())
        return QByteArray();
    QByteArray content;
    const int error = readToEnd(file.number(), status.st_size, content);
    if (error == 0)
        return content;
    reason = systemMessage(error);
    return QByteArray();
}

} // namespace

QByteArray RegularFile::readAll(const QString& path, QString& reason)
{
    reason = problemOfPath(path);
    return reason.isNull() ? readOpenFile(Descriptor::ofFile(path), reason) : QByteArray();
}

QByteArray RegularFile::readAllIn(const QString& directory, const QString& path, QString& reason)
{
    reason = problemOfPath(path);
    if (!reason.isNull())
        return QByteArray();
    const Descriptor file = Descriptor::ofFile(path);
    reason = file.number() < 0 ? file.problem() : file.problemOfPlace(directory);
    return readOpenFile(file, reason);
}

QString RegularFile::problemIn(const QString& directory, const QString& path)
{
    QString problem = problemOfPath(path);
    if (!problem.isNull())
        return problem;
    const Descriptor file = Descriptor::ofFile(path);
    struct stat status = {};
    const QString fault = problemOf(file, status);
    return fault.isNull() ? file.problemOfPlace(directory) : fault;
}

} // namespace ResourceFormat
