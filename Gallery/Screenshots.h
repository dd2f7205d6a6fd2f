#pragma once

#include <QString>

class QQuickWindow;

namespace Gallery
{

struct Session;

/// Takes pictures of the gallery's window.
class Screenshots
{
public:
    Screenshots(QQuickWindow& quickWindow, Session& gallerySession);

    /// Writes the current page as a PNG file. Waits at most 10 s for the window to be drawn.
    bool take(const QString& path);

    /// Writes every page in every display size and language of the session as `PAGE-WxH-LANGUAGE.png`, with a progress
    /// bar on stderr. Stops at the first picture that cannot be written.
    bool takeAll(const QString& directory);

private:
    void showWholeDisplay();

    QQuickWindow& window;
    Session& session;
};

} // namespace Gallery
