#pragma once

#include <QString>

class Catalogue;
class GalleryView;

/// The command line of the gallery.
struct Options {
    /// Whether the arguments ask for something that can be done without a display. To be asked before Qt starts.
    static bool needsNoDisplay(int argc, char* argv[]);

    /// What is wrong with the arguments, as a sentence; null if nothing is. Prints and leaves for --help, --version.
    QString parse(int argc, char* argv[]);

    /// Which value is unknown to the resources, as a sentence that lists those there are; null if none is.
    QString check(const GalleryView& view, const Catalogue& catalogue) const;

    QString language;
    QString context;
    QString display;
    QString page;
    QString screenshot;
    QString screenshotDirectory;
    bool isDump = false;
};
