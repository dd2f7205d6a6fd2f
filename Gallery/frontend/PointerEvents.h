#pragma once

class QHoverEvent;
class QMouseEvent;
class QTouchEvent;
class QWindow;

/// Sends the events of an item on to a window, with `scale` pixels of the window per pixel of the item.
namespace Gallery::PointerEvents
{

void send(const QMouseEvent& event, QWindow& window, double scale);

/// As the movement of a mouse without a pressed button.
void send(const QHoverEvent& event, QWindow& window, double scale);

void send(const QTouchEvent& event, QWindow& window, double scale);

} // namespace Gallery::PointerEvents
