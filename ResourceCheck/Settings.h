#pragma once

#include "ResourceCheck/Finding.h"

#include <QHash>
#include <QPair>
#include <QVector>

namespace ResourceFormat
{
struct IniEntry;
}
using ResourceFormat::IniEntry;

/// How to check: what both the command line and the file `.tarnis-check.ini` of a resource directory can say.
///
/// Each function returns what is wrong with its argument, as a sentence that says what is allowed; null if nothing is.
struct Settings {
    /// A directory may be without the file.
    QString readFileOf(const QString& directory);

    QString setRule(const QString& name, const QString& severity);

    /// One value for `keep`, `contrast`, `id` or `werror`.
    QString setOption(const QString& name, const QString& value);

    QHash<QString, Severity> severities; // by the names of the rules
    QStringList kept;
    QVector<QPair<QString, QString>> contrastPairs;
    QHash<QString, QString> handlerNames; // empty: the default ones
    bool warningsAreErrors = false;

private:
    QString setEntry(const IniEntry& entry);
};
