#include "ResourceFormat/RegularFile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr off_t sizeLimit = 1 << 30; // a QByteArray holds twice as much

class OpenFile
{
public:
    // Non-blocking: a regular file may have been replaced by a FIFO since it was checked. Opening a FIFO would wait for
    // its writer, on the thread that draws the screen.
    explicit OpenFile(const QByteArray& path)
        : descriptor(open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
    {
    }

    ~OpenFile()
    {
        if (descriptor >= 0)
            close(descriptor);
    }

    Q_DISABLE_COPY(OpenFile)

    const int descriptor;
};

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
        if (size > sizeLimit)
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
    return S_ISREG(status.st_mode) ? QString() : QStringLiteral("Not a regular file");
}

QByteArray readOpenFile(const OpenFile& file, QString& reason)
{
    struct stat status = {};
    reason = problemOf(file.descriptor < 0 ? -1 : fstat(file.descriptor, &status), status);
    if (!reason.isNull())
        return QByteArray();
    QByteArray content;
    const int error = status.st_size > sizeLimit ? EFBIG : readToEnd(file.descriptor, status.st_size, content);
    if (error == 0)
        return content;
    reason = systemMessage(error);
    return QByteArray();
}

} // namespace

namespace ResourceFormat::RegularFile
{

QByteArray readAll(const QString& path, QString& reason)
{
    reason = path.isEmpty() ? QStringLiteral("The path is empty") : QString();
    if (path.contains(QChar::Null))
        reason = QStringLiteral("The path contains a null character");
    if (!reason.isNull())
        return QByteArray();
    const QByteArray encodedPath = QFile::encodeName(path);
    struct stat status = {};
    reason = problemOf(stat(encodedPath.constData(), &status), status);
    return reason.isNull() ? readOpenFile(OpenFile(encodedPath), reason) : QByteArray();
}

} // namespace ResourceFormat::RegularFile
