#include "Gallery/frontend/FrontEndInput.h"

#include "Gallery/frontend/PointerEvents.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QScopedValueRollback>

#include <private/qguiapplication_p.h>
#include <private/qshortcutmap_p.h>

namespace Gallery
{

namespace
{

// One of the shortcuts closes popups.
bool trigger(QKeyEvent& event, QQuickWindow& window)
{
    QKeyEvent replacement(QEvent::ShortcutOverride, event.key(), event.modifiers(), event.text());
    replacement.ignore();
    QCoreApplication::sendEvent(&window, &replacement);
    if (replacement.isAccepted())
        return false;
    return QGuiApplicationPrivate::instance()->shortcutMap.tryShortcut(&event);
}

} // namespace

bool FrontEndInput::pass(QEvent& event, QQuickWindow& window, double scale)
{
    factor = scale;
    // Qt gives focus to items and triggers shortcuts only in the window that has the focus of the window system.
    const QScopedValueRollback<QWindow*> focus(QGuiApplicationPrivate::focus_window, &window);
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        PointerEvents::send(static_cast<QMouseEvent&>(event), window, factor);
        return true;
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        PointerEvents::send(static_cast<QHoverEvent&>(event), window, factor);
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
        PointerEvents::send(static_cast<QTouchEvent&>(event), window, factor);
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return passKey(static_cast<QKeyEvent&>(event), window);
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        visited.clear();
        QCoreApplication::sendEvent(&window, &event);
        return false;
    default:
        return false;
    }
}

// A front end that scrolls no further lets the page scroll.
bool FrontEndInput::passWheel(const QWheelEvent& event, QQuickWindow& window)
{
    QWheelEvent passed(factor * event.position(), event.globalPosition(), event.pixelDelta(), event.angleDelta(),
                       event.buttons(), event.modifiers(), event.phase(), event.inverted());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&window, &passed);
    return passed.isAccepted();
}

bool FrontEndInput::passKey(QKeyEvent& event, QQuickWindow& window)
{
    if (event.type() == QEvent::KeyPress && trigger(event, window))
        return true;
    event.accept();
    QCoreApplication::sendEvent(&window, &event);
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if (!isTab || event.type() != QEvent::KeyPress)
        return event.isAccepted();
    // The key leaves the front end when it comes to an item for the second time.
    const bool isNew = !visited.contains(window.activeFocusItem());
    visited.insert(window.activeFocusItem());
    event.setAccepted(isNew);
    return isNew;
}

} // namespace Gallery
