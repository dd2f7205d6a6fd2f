#include "Gallery/frontend/PointerEvents.h"

#include <QCoreApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWindow>

#if QT_VERSION_MAJOR >= 6
#include <private/qeventpoint_p.h>
#include <private/qpointingdevice_p.h>
#endif

namespace Gallery
{

namespace
{

#if QT_VERSION_MAJOR < 6

void sendMouse(const QMouseEvent& event, const QPointF& position, const QPointF& globalPosition, QWindow& window)
{
    QMouseEvent passed(event.type(), position, position, globalPosition, event.button(), event.buttons(),
                       event.modifiers());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
}

void sendTouch(const QTouchEvent& event, QWindow& window, double scale)
{
    QList<QTouchEvent::TouchPoint> points = event.touchPoints();
    for (QTouchEvent::TouchPoint& point : points) {
        point.setStartPos(scale * point.startPos());
        point.setLastPos(scale * point.lastPos());
        point.setPos(scale * point.pos());
        point.setStartScenePos(point.startPos());
        point.setLastScenePos(point.lastPos());
        point.setScenePos(point.pos());
    }
    QTouchEvent passed(event.type(), event.device(), event.modifiers(), event.touchPointStates(), points);
    passed.setWindow(&window);
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
}

QPointF localPositionOf(const QMouseEvent& event)
{
    return event.localPos();
}

QPointF globalPositionOf(const QMouseEvent& event)
{
    return event.screenPos();
}

QPointF localPositionOf(const QHoverEvent& event)
{
    return event.posF();
}

#else

// Each device knows one item that has grabbed a point. Around the window, that is the item that passes the events on.
QPointingDevice& mouse()
{
    static QPointingDevice device(QStringLiteral("front end mouse"), 1, QInputDevice::DeviceType::Mouse,
                                  QPointingDevice::PointerType::Generic,
                                  QInputDevice::Capability::Position | QInputDevice::Capability::Hover, 1, 3);
    return device;
}

QPointingDevice& touchScreen()
{
    static QPointingDevice device(QStringLiteral("front end touch screen"), 2, QInputDevice::DeviceType::TouchScreen,
                                  QPointingDevice::PointerType::Finger, QInputDevice::Capability::Position, 10, 0);
    return device;
}

// Qt keeps the grabbers of a point with the device while the point is pressed.
QEventPoint scaled(const QEventPoint& point, QWindow& window, double scale)
{
    QEventPoint& kept = QPointingDevicePrivate::get(&touchScreen())->pointById(point.id())->eventPoint;
    QMutableEventPoint::detach(kept);
    QMutableEventPoint::update(point, kept);
    QMutableEventPoint::setWindow(kept, &window);
    QMutableEventPoint::setPosition(kept, scale * point.position());
    QMutableEventPoint::setScenePosition(kept, scale * point.position());
    QMutableEventPoint::setGlobalPosition(kept, window.mapToGlobal(scale * point.position()));
    QMutableEventPoint::setGlobalPressPosition(kept, window.mapToGlobal(scale * point.pressPosition()));
    QMutableEventPoint::setGlobalLastPosition(kept, window.mapToGlobal(scale * point.lastPosition()));
    return kept;
}

void sendMouse(const QMouseEvent& event, const QPointF& position, const QPointF& globalPosition, QWindow& window)
{
    QMouseEvent passed(event.type(), position, position, globalPosition, event.button(), event.buttons(),
                       event.modifiers(), &mouse());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
}

void sendTouch(const QTouchEvent& event, QWindow& window, double scale)
{
    QList<QEventPoint> points;
    for (const QEventPoint& point : event.points())
        points.append(scaled(point, window, scale));
    QTouchEvent passed(event.type(), &touchScreen(), event.modifiers(), points);
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
    for (const QEventPoint& point : event.points()) {
        if (point.state() == QEventPoint::Released)
            QPointingDevicePrivate::get(&touchScreen())->removePointById(point.id());
    }
}

QPointF localPositionOf(const QSinglePointEvent& event)
{
    return event.position();
}

QPointF globalPositionOf(const QMouseEvent& event)
{
    return event.globalPosition();
}

#endif

} // namespace

void PointerEvents::send(const QMouseEvent& event, QWindow& window, double scale)
{
    sendMouse(event, scale * localPositionOf(event), globalPositionOf(event), window);
}

void PointerEvents::send(const QHoverEvent& event, QWindow& window, double scale)
{
    const QPointF position = scale * localPositionOf(event);
    QMouseEvent move(QEvent::MouseMove, position, position, Qt::NoButton, Qt::NoButton, event.modifiers());
    move.setTimestamp(event.timestamp());
    sendMouse(move, position, position, window);
}

void PointerEvents::send(const QTouchEvent& event, QWindow& window, double scale)
{
    sendTouch(event, window, scale);
}

} // namespace Gallery
