#include "Gallery/LastGoodFiles.h"

#include "ResourceFormat/RegularFile.h"

#include <QDir>
#include <QSaveFile>

namespace Gallery
{

using namespace ResourceFormat;

namespace
{

// A file with the same content is left alone, so that nobody reads it again.
bool save(const QString& path, const QByteArray& content)
{
    QString reason;
    if (RegularFile::readAll(path, reason) == content && reason.isNull())
        return true;
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
}

} // namespace

Directory LastGoodFiles::copies() const
{
    return Directory(directory.path());
}

QString LastGoodFiles::update(const QString& path, const QString& copy, FileFaults::Finder findFaults,
                              QStringList& faults)
{
    QString reason;
    const QByteArray content = RegularFile::readAll(path, reason);
    const QStringList found =
        reason.isNull() ? findFaults(path, content) : QStringList(QStringLiteral("%1: %2").arg(path, reason));
    faults += found;
    if (found.isEmpty())
        goodCopies.insert(copy);
    else if (goodCopies.contains(copy))
        return copy;
    return save(copy, content) ? copy : path;
}

} // namespace Gallery
