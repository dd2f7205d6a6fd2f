#pragma once

#include <QByteArray>
#include <QString>

/// Reading of files that other processes own and may replace with anything.
namespace ResourceFormat::RegularFile
{

/// Reads the whole file without ever waiting for it. If the file is missing, unreadable or not a regular file (a
/// directory, a FIFO or a device is not opened), the result is empty and `reason` says why. Otherwise `reason` is null.
QByteArray readAll(const QString& path, QString& reason);

} // namespace ResourceFormat::RegularFile
