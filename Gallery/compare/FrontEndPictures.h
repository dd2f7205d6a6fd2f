#pragma once

#include "QmlHost/TarnisUi.h"

#include <QImage>
#include <QString>
#include <QUrl>

namespace Gallery
{

/// Draws a front end in any display size, icon context and language.
class FrontEndPictures
{
public:
    /// Publishes `tarnisUi`, which must outlive this object and be the one that was published last whenever a picture
    /// is drawn. It keeps the display size and language of the last picture.
    FrontEndPictures(TarnisUi& tarnisUi, const QUrl& qmlFile);

    /// Whether there is a display that windows can be drawn for.
    static bool canDraw();

    /// Loads the front end and draws it as soon as its objects are laid out. Null if it cannot be loaded.
    QImage draw(const QString& display, const QString& context, const QString& language);

    /// Why the last picture is null.
    QString problem() const;

private:
    TarnisUi& ui;
    const QUrl url;
    QString lastProblem;
};

} // namespace Gallery
