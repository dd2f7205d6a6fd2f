#include "Gallery/frontend/FrontEndView.h"

#include <QCoreApplication>
#include <QPainter>
#include <QQuickWindow>

#include <utility>

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

void FrontEndView::paint(QPainter* painter)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(boundingRect(), picture);
}

bool FrontEndView::event(QEvent* event)
{
    FrontEnd* const frontEnd = source == nullptr ? nullptr : source->frontEnd();
    return (frontEnd != nullptr && passOn(*event, *frontEnd->window())) || QQuickPaintedItem::event(event);
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
        QCoreApplication::sendEvent(frontEnd->window(), &event);
    }
    draw();
}

void FrontEndView::scheduleDrawing()
{
    if (!delay.isActive())
        delay.start(static_cast<int>(qBound(qint64(0), frameMilliseconds - sinceDrawn.elapsed(), qint64(frameMilliseconds))));
}

void FrontEndView::draw()
{
    sinceDrawn.start();
    if (source != nullptr && source->frontEnd() != nullptr)
        picture = source->frontEnd()->picture();
    update();
}

bool FrontEndView::passOn(QEvent& event, QQuickWindow& window)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        forceActiveFocus(Qt::MouseFocusReason);
        [[fallthrough]];
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        passMouse(static_cast<QMouseEvent&>(event), window);
        return true;
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        passHover(static_cast<QHoverEvent&>(event), window);
        return true;
    case QEvent::HoverLeave: {
        QEvent leave(QEvent::Leave);
        return QCoreApplication::sendEvent(&window, &leave);
    }
    case QEvent::Wheel:
        return passWheel(static_cast<QWheelEvent&>(event), window);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        passTouch(static_cast<QTouchEvent&>(event), window);
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return passKey(static_cast<QKeyEvent&>(event), window);
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        tabbed.clear();
        QCoreApplication::sendEvent(&window, &event);
        return false;
    default:
        return false;
    }
}

void FrontEndView::passMouse(const QMouseEvent& event, QQuickWindow& window)
{
    const QPointF position = toFrontEnd(event.localPos());
    QMouseEvent passed(event.type(), position, position, event.screenPos(), event.button(), event.buttons(),
                       event.modifiers());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
    setCursor(window.cursor());
}

void FrontEndView::passHover(const QHoverEvent& event, QQuickWindow& window)
{
    QMouseEvent move(QEvent::MouseMove, event.posF(), Qt::NoButton, Qt::NoButton, event.modifiers());
    move.setTimestamp(event.timestamp());
    passMouse(move, window);
}

// A front end that scrolls no further lets the page scroll.
bool FrontEndView::passWheel(const QWheelEvent& event, QQuickWindow& window)
{
    QWheelEvent passed(toFrontEnd(event.position()), event.globalPosition(), event.pixelDelta(), event.angleDelta(),
                       event.buttons(), event.modifiers(), event.phase(), event.inverted());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
    return passed.isAccepted();
}

void FrontEndView::passTouch(const QTouchEvent& event, QQuickWindow& window)
{
    QList<QTouchEvent::TouchPoint> points = event.touchPoints();
    for (QTouchEvent::TouchPoint& point : points) {
        point.setStartPos(toFrontEnd(point.startPos()));
        point.setLastPos(toFrontEnd(point.lastPos()));
        point.setPos(toFrontEnd(point.pos()));
        point.setStartScenePos(point.startPos());
        point.setLastScenePos(point.lastPos());
        point.setScenePos(point.pos());
    }
    QTouchEvent passed(event.type(), event.device(), event.modifiers(), event.touchPointStates(), points);
    passed.setWindow(&window);
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
}

// The Tab key leaves the front end when it comes to an item for the second time.
bool FrontEndView::passKey(QKeyEvent& event, QQuickWindow& window)
{
    event.accept();
    QCoreApplication::sendEvent(&window, &event);
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if (!isTab || event.type() != QEvent::KeyPress)
        return event.isAccepted();
    const bool isNew = !tabbed.contains(window.activeFocusItem());
    tabbed.insert(window.activeFocusItem());
    event.setAccepted(isNew);
    return isNew;
}

QPointF FrontEndView::toFrontEnd(const QPointF& position) const
{
    const QSize size = source->size();
    return {position.x() * size.width() / width(), position.y() * size.height() / height()};
}

} // namespace Gallery
