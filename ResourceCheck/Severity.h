#pragma once

#include <QString>
#include <QStringList>

namespace ResourceCheck
{

enum class Severity { Off, Warning, Error };

/// The names that users read and write, in the order of the severities.
inline const QStringList severityNames{QStringLiteral("off"), QStringLiteral("warning"), QStringLiteral("error")};

inline const QString& severityName(Severity severity)
{
    return severityNames.at(static_cast<int>(severity));
}

} // namespace ResourceCheck
