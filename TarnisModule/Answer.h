#pragma once

#include <QDBusVariant>
#include <QString>

/// The variants that the module answers with. Each contains a reply record.
namespace TarnisModule::Answer
{

QDBusVariant value(const QVariant& value);

/// An error with the default error code.
QDBusVariant error(const QString& message);

/// The path if the file can be read, otherwise an error that names it.
QDBusVariant readableFile(const QString& path);

/// Why the path is not a readable regular file; null if it is one.
QString fileProblem(const QString& path);

} // namespace TarnisModule::Answer
