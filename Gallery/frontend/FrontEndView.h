#pragma once

#include "Gallery/frontend/FrontEndInput.h"
#include "Gallery/frontend/LivePreview.h"

#include <QElapsedTimer>
#include <QImage>
#include <QQuickPaintedItem>
#include <QTimer>

namespace Gallery
{

/// Shows the front end of the live preview, scaled to the size of the item, and passes mouse, touch screen and keyboard
/// on to it. The QML type `FrontEndView` of the module `Tarnis.Gallery`.
class FrontEndView : public QQuickPaintedItem
{
    Q_OBJECT

    /// Null to show nothing. It must outlive the item. The first item loads the front end.
    Q_PROPERTY(Gallery::LivePreview* preview READ preview WRITE setPreview NOTIFY previewChanged)

public:
    FrontEndView();

    LivePreview* preview() const;
    void setPreview(LivePreview* livePreview);

    /// Draws at once what would be drawn with the next frame.
    void finishDrawing();

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void previewChanged();

protected:
    bool event(QEvent* event) override;

private:
    void follow();
    void scheduleDrawing();
    void draw();

    LivePreview* source = nullptr;
    QImage picture;
    QTimer delay;
    QElapsedTimer sinceDrawn;
    FrontEndInput input;
};

} // namespace Gallery
