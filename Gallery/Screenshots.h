#pragma once

#include <QString>

class QQuickWindow;

namespace Gallery
{

class Catalog;
class View;

/// Takes pictures of the gallery's window.
class Screenshots
{
public:
    Screenshots(QQuickWindow& quickWindow, View& galleryView);

    /// Writes the current page as a PNG file. Waits at most 10 s for the window to be drawn.
    bool take(const QString& path);

    /// Writes every page in every display size and language of the catalog as `PAGE-WxH-LANGUAGE.png`, with a progress
    /// bar on stderr. Stops at the first picture that cannot be written.
    bool takeAll(const QString& directory, const Catalog& catalog);

private:
    QQuickWindow& window;
    View& view;
};

} // namespace Gallery
