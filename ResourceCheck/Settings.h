#pragma once

#include "ResourceCheck/Severity.h"

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace ResourceFormat
{
struct IniEntry;
}

namespace ResourceCheck
{

/// How to check: the options of the command line and of the file `.tarnis-check.ini` in the resource directory.
///
/// Each function returns what is wrong with its argument and what to do; null if nothing is wrong.
struct Settings {
    /// The name of the file in the resource directory.
    static QString fileName();

    /// The file is optional.
    QString readFileOf(const QString& directory);

    /// The message for a name that no rule has.
    static QString unknownRule(const QString& name);

    QString setRule(const QString& name, const QString& severity);

    /// Adds or sets one value of `keep`, `contrast`, `id`, `max-length` or `werror`.
    QString setOption(const QString& name, const QString& value);

    QHash<QString, Severity> severities; // by the names of the rules
    QStringList kept;
    QVector<QPair<QString, QString>> contrastPairs;
    QVector<QPair<QString, int>> maximumLengths; // by groups of texts
    QHash<QString, QString> handlerNames;        // classes by their names in QML; empty: the default names
    bool warningsAreErrors = false;

private:
    QString addContrastPair(const QString& value);
    QString addMaximumLength(const QString& value);
    QString addHandlerName(const QString& value);
    QString setWarningsAreErrors(const QString& value);
    QString setEntry(const ResourceFormat::IniEntry& entry);
};

} // namespace ResourceCheck
