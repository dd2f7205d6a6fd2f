#pragma once

#include "ResourceCheck/Settings.h"

class QCommandLineParser;

/// The command line of the checker.
struct Options {
    /// What is wrong with the arguments or the directory's configuration, as a sentence; null if nothing is. Prints and
    /// leaves for --help, --version, --list-rules and --explain.
    QString parse(const QStringList& arguments);

    QString directory;
    QStringList question; // behind `resolve DIR`; else empty
    QStringList qmlDirectories;
    QString format; // `text`, `summary`, `json` or `sarif`
    Settings settings;

private:
    QString readPositional(const QStringList& arguments);
    QString readFormat(const QCommandLineParser& parser);
    QString readSettings(const QCommandLineParser& parser);
};
