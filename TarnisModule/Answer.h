#pragma once

#include <QDBusVariant>
#include <QString>

/// The variants that the module answers with. Each contains a reply record.
namespace TarnisModule::Answer
{

/// The value if `problem` is null, otherwise an error with the default error code and that message.
QDBusVariant of(const QVariant& value, const QString& problem);

} // namespace TarnisModule::Answer
