#include "ResourceFormat/Descriptor.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace ResourceFormat
{

Descriptor Descriptor::ofFile(const QString& path)
{
    return {path, O_RDONLY | O_NONBLOCK};
}

Descriptor Descriptor::ofDirectory(const QString& path)
{
    return {path, O_PATH | O_DIRECTORY};
}

Descriptor::Descriptor(const QString& path, int flags)
    : descriptor(open(QFile::encodeName(path).constData(), flags | O_CLOEXEC))
    , error(errno)
{
}

Descriptor::~Descriptor()
{
    if (descriptor >= 0)
        close(descriptor);
}

QString Descriptor::problem() const
{
    return descriptor < 0 ? QString::fromLocal8Bit(strerror(error)) : QString();
}

// Without links. Empty if the kernel does not tell.
QByteArray Descriptor::location() const
{
    std::array<char, PATH_MAX> path;
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
    const ssize_t size = descriptor < 0 ? -1 : readlink(link.constData(), path.data(), path.size());
    return size < 0 ? QByteArray() : QByteArray(path.data(), static_cast<int>(size));
}

QString Descriptor::problemOfPlace(const QString& directory) const
{
    const QByteArray place = location();
    QByteArray root = ofDirectory(directory).location();
    if (place.isEmpty() || root.isEmpty())
        return QStringLiteral("it is not known where this is; /proc must be mounted");
    if (!root.endsWith('/'))
        root += '/';
    if ((place + '/').startsWith(root))
        return QString();
    return QStringLiteral("leads to \"%1\", outside of the resource directory; copy it into the directory")
        .arg(QFile::decodeName(place));
}

} // namespace ResourceFormat
