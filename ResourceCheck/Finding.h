#pragma once

#include <QString>
#include <QStringList>

enum class Severity { Off, Warning, Error };

/// As the user writes and reads them, in the order of the severities.
inline const QStringList severityNames{QStringLiteral("off"), QStringLiteral("warning"), QStringLiteral("error")};

inline const QString& severityName(Severity severity)
{
    return severityNames.at(static_cast<int>(severity));
}

/// Where something stands. Lines and columns count from 1, columns in characters; 0 means all of it.
struct Place {
    QString path;
    int line = 0;
    int column = 0;
};

/// One fault that a rule has found.
struct Finding {
    QString rule;
    Severity severity;
    Place place;
    QString message;
};
