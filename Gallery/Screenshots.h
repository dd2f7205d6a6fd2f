#pragma once

#include <QString>

class Catalogue;
class GalleryView;
class QQuickWindow;

/// Takes pictures of the gallery's window.
class Screenshots
{
public:
    Screenshots(QQuickWindow& window, GalleryView& view);

    /// The page as it stands, as a PNG file. Waits 10 s at the most for the window to be drawn.
    bool take(const QString& path);

    /// Every page in every display size and language of the catalogue as `PAGE-WxH-LANGUAGE.png`, with a progress bar
    /// on stderr. Stops at the first picture that cannot be written.
    bool takeAll(const QString& directory, const Catalogue& catalogue);

private:
    QQuickWindow& window;
    GalleryView& view;
};
