#pragma once

#include <QString>
#include <QStringList>

class QQuickWindow;

namespace Gallery
{

struct Session;

/// Takes pictures of the gallery's window.
class Screenshots
{
public:
    Screenshots(QQuickWindow& quickWindow, Session& gallerySession);

    /// Writes the current page as a PNG file. Waits at most 10 s for the page to be complete.
    bool take(const QString& path);

    /// Writes every page in every display size and language of the session as `PAGE-WxH-LANGUAGE.png`, with a progress
    /// bar on stderr. Stops at the first picture that cannot be written.
    bool takeAll(const QString& directory);

    /// The paths of the pictures of pages that were not complete.
    QStringList incomplete() const;

private:
    bool isChanging() const;
    void showWholeDisplay();

    QQuickWindow& window;
    Session& session;
    QStringList incompletePictures;
};

} // namespace Gallery
