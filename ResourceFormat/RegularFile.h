#pragma once

#include <QByteArray>
#include <QString>

/// Reading of files that other processes own and may replace with anything.
namespace ResourceFormat::RegularFile
{

/// The largest file that is read, in bytes. A mapping table must also fit into a message, for which the bus allows
/// twice as much.
constexpr int sizeLimit = 16 * 1024 * 1024;

/// Reads the whole file without ever waiting for it. If the file is missing, unreadable, above the limit or not a
/// regular file (a directory, a FIFO or a device is not opened), the result is empty and `reason` says why. Otherwise
/// `reason` is null.
QByteArray readAll(const QString& path, QString& reason);

/// As readAll(), but the file must be in the directory: a link to a file outside is a reason.
QByteArray readAllIn(const QString& directory, const QString& path, QString& reason);

/// Why readAllIn() would not read the file; null if it would.
QString problemIn(const QString& directory, const QString& path);

} // namespace ResourceFormat::RegularFile
