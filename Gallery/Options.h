#pragma once

#include <QSize>
#include <QString>

namespace Gallery
{

struct Session;

/// The command line of the gallery.
struct Options {
    /// Whether the arguments ask for something that needs no display. Call it before Qt starts.
    static bool needsNoDisplay(int argc, char* argv[]);

    /// Whether the arguments ask for the report of a comparison. Call it before Qt starts.
    static bool isReport(int argc, char* argv[]);

    /// Returns what is wrong with the arguments; a null string if nothing is. Ends the process for --help and
    /// --version.
    QString parse(int argc, char* argv[]);

    /// Returns which value is not known in the session, and the known ones; a null string if all are known.
    QString check(const Session& session) const;

    /// Whether to show a window until the user closes it.
    bool isInteractive() const;

    QString qmlFile;   ///< Empty for the sample front end.
    QString directory; ///< Empty for the service.
    QString language;
    QString context;
    QString display;
    QString page;
    QString theme;
    QString editor;   ///< Empty for the program of the desktop.
    QSize windowSize; ///< Invalid if it is not given.
    QString screenshot;
    QString screenshotDirectory;
    QString contactSheet;
    QString oldDirectory; ///< To compare with; empty for no comparison.
    QString report;
    bool isDump = false;
};

} // namespace Gallery
