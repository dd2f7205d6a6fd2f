#pragma once

#include <QByteArray>
#include <QString>

namespace ResourceFormat
{

/// An open file or directory. It is closed with this object.
class Descriptor
{
public:
    /// Opens a file for reading without ever waiting: a FIFO that has replaced it is opened, too.
    static Descriptor ofFile(const QString& path);

    /// Opens a directory. This needs no permission to read it.
    static Descriptor ofDirectory(const QString& path);

    ~Descriptor();
    Q_DISABLE_COPY(Descriptor)

    /// Below 0 if it cannot be opened; problem() tells why.
    int number() const { return descriptor; }

    /// Why it cannot be opened; null if it is open.
    QString problem() const;

    /// Why it is not in the directory; null if it is, or is the directory itself. The path of what is open is compared,
    /// so no link can be switched in between. Links in the path of the directory are followed.
    QString problemOfPlace(const QString& directory) const;

private:
    Descriptor(const QString& path, int flags);

    QByteArray location() const;

    const int descriptor;
    const int error;
};

} // namespace ResourceFormat
