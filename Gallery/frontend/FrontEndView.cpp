#include "Gallery/frontend/FrontEndView.h"

#include <QPainter>
#include <QQuickWindow>

namespace Gallery
{

namespace
{

constexpr int frameMilliseconds = 16;

} // namespace

FrontEndView::FrontEndView()
{
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
    setActiveFocusOnTab(true);
    setKeepMouseGrab(true); // a Flickable around it must not scroll while the front end is dragged
    setKeepTouchGrab(true);
    delay.setSingleShot(true);
    connect(&delay, &QTimer::timeout, this, &FrontEndView::draw);
}

LivePreview* FrontEndView::preview() const
{
    return source;
}

void FrontEndView::setPreview(LivePreview* livePreview)
{
    if (livePreview == source)
        return;
    if (source != nullptr)
        disconnect(source, nullptr, this, nullptr);
    source = livePreview;
    Q_EMIT previewChanged();
    if (source == nullptr)
        return;
    connect(source, &LivePreview::frontEndChanged, this, &FrontEndView::follow);
    source->load();
    follow();
}

void FrontEndView::finishDrawing()
{
    if (!delay.isActive())
        return;
    delay.stop();
    draw();
}

void FrontEndView::paint(QPainter* painter)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(boundingRect(), picture);
}

bool FrontEndView::event(QEvent* event)
{
    FrontEnd* const frontEnd = source == nullptr ? nullptr : source->frontEnd();
    if (frontEnd == nullptr || width() <= 0)
        return QQuickPaintedItem::event(event);
    if (event->type() == QEvent::MouseButtonPress)
        forceActiveFocus(Qt::MouseFocusReason);
    QQuickWindow& window = *frontEnd->window();
    const bool isTaken = input.pass(*event, window, window.width() / width());
    setCursor(window.cursor());
    return isTaken || QQuickPaintedItem::event(event);
}

void FrontEndView::follow()
{
    FrontEnd* const frontEnd = source->frontEnd();
    if (frontEnd == nullptr)
        return;
    connect(frontEnd, &FrontEnd::updateRequested, this, &FrontEndView::scheduleDrawing);
    connect(frontEnd, &FrontEnd::sizeChanged, this, &FrontEndView::scheduleDrawing);
    if (hasActiveFocus()) {
        QFocusEvent event(QEvent::FocusIn);
        input.pass(event, *frontEnd->window(), 1);
    }
    draw();
}

void FrontEndView::scheduleDrawing()
{
    if (!delay.isActive())
        delay.start(qMax(0, frameMilliseconds - static_cast<int>(sinceDrawn.elapsed())));
}

void FrontEndView::draw()
{
    sinceDrawn.start();
    if (source != nullptr && source->frontEnd() != nullptr)
        picture = source->frontEnd()->picture();
    update();
}

} // namespace Gallery
