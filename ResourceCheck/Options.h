#pragma once

#include "ResourceCheck/Settings.h"

#include <QByteArray>

class QCommandLineParser;

namespace ResourceCheck
{

/// The command line of the checker.
struct Options {
    /// Returns what is wrong with the arguments or with the configuration file of the directory, and what to do; null
    /// if nothing is wrong.
    QString parse(const QStringList& arguments);

    /// What --help, --version, --list-rules, --list-records or --explain print. If it is not empty, there is nothing
    /// else to do, and the other members are not set.
    QByteArray information;

    QString directory;
    QStringList question; // the arguments after `resolve DIR`; otherwise empty
    QStringList qmlDirectories;
    QString baseline; // the file of accepted findings; empty if there is none
    bool updatesBaseline = false;
    bool fixes = false;
    bool isDryRun = false;        // only shows what `fixes` would change
    bool watches = false;         // check again after each change
    QString format;               // `text`, `summary`, `json`, `sarif` or `gitlab`
    bool showsUnresolved = false; // list the names in QML that depend on values at run time
    Settings settings;

private:
    QString readInformation(const QCommandLineParser& parser);
    QString readPositional(const QStringList& arguments);
    QString readFormat(const QCommandLineParser& parser);
    QString readSettings(const QCommandLineParser& parser);
    QString readActions(const QCommandLineParser& parser);
};

} // namespace ResourceCheck
