#pragma once

#include <QDBusVariant>
#include <QString>

/// The variants with which the module answers, each holding a reply record.
namespace Answer
{

QDBusVariant value(const QVariant& value);

/// An error with the default error code.
QDBusVariant error(const QString& message);

/// The path as the value if the file can be read, else an error that names it.
QDBusVariant readableFile(const QString& path);

/// Why the path is no readable regular file; null if it is one.
QString fileProblem(const QString& path);

/// Teaches Qt's D-Bus layer the types that the answers hold. Call it once, before the first answer.
void registerTypes();

} // namespace Answer
