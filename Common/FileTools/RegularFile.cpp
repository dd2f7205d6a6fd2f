#include "Common/FileTools/RegularFile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr off_t sizeLimit = 1 << 30; // what a QByteArray holds, with room to spare

class OpenFile
{
public:
    // Not blocking: what was a regular file a moment ago may be a FIFO by now, and opening that would wait for its
    // writer, on the thread that draws the screen.
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

// Gives 0 or the number of the error.
int readToEnd(int descriptor, off_t expectedSize, QByteArray& content)
{
    content.resize(static_cast<int>(expectedSize) + 1); // the last byte is for the end to be seen
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
            content.resize(size + size / 2 + 1); // it has grown since
    }
    content.truncate(size);
    return 0;
}

} // namespace

QByteArray RegularFile::readAll(const QString& path, QString& reason)
{
    reason = QString();
    if (path.isEmpty()) {
        reason = QStringLiteral("No path");
        return QByteArray();
    }
    if (path.contains(QChar::Null)) {
        reason = QStringLiteral("No path: it holds a null character");
        return QByteArray();
    }
    const QByteArray encodedPath = QFile::encodeName(path);
    const auto fail = [&reason](int error) {
        reason = error == 0 ? QStringLiteral("Not a regular file") : QString::fromLocal8Bit(strerror(error));
        return QByteArray();
    };
    struct stat status = {};
    if (stat(encodedPath.constData(), &status) != 0)
        return fail(errno);
    if (!S_ISREG(status.st_mode))
        return fail(0);
    const OpenFile file(encodedPath);
    if (file.descriptor < 0 || fstat(file.descriptor, &status) != 0)
        return fail(errno);
    if (!S_ISREG(status.st_mode))
        return fail(0);
    if (status.st_size > sizeLimit)
        return fail(EFBIG);
    QByteArray content;
    if (const int error = readToEnd(file.descriptor, status.st_size, content))
        return fail(error);
    return content;
}
