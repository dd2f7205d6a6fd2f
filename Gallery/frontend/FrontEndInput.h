#pragma once

#include <QEvent>
#include <QPointF>
#include <QSet>

class QKeyEvent;
class QQuickItem;
class QQuickWindow;
class QWheelEvent;

namespace Gallery
{

/// Passes the events of an item on to a window that is not shown.
class FrontEndInput
{
public:
    /// `scale` is the number of pixels of the window per pixel of the item. Returns whether the event was used.
    bool pass(QEvent& event, QQuickWindow& window, double scale);

private:
    bool passWheel(const QWheelEvent& event, QQuickWindow& window);
    bool passKey(QKeyEvent& event, QQuickWindow& window);

    double factor = 1;
    QSet<const QQuickItem*> visited; // with the Tab key, since the window got the focus
};

} // namespace Gallery
