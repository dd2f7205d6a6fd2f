#pragma once

#include <QByteArray>
#include <QString>

/// Reading of files that others own and may replace with anything.
namespace RegularFile
{

/// Reads the whole file. When it is missing, unreadable or no regular file (a directory, a FIFO, a device: none of
/// them is opened), the result is empty and `reason` says why; otherwise `reason` is null.
Q_DECL_EXPORT QByteArray readAll(const QString& path, QString& reason);

} // namespace RegularFile
