#pragma once

#include "Gallery/Session.h"

#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <functional>

namespace Tests
{

/// The gallery's window in the process of the test.
class GalleryWindow
{
public:
    /// Does not wait for the source. `prepare` is called before anything is published.
    explicit GalleryWindow(
        std::unique_ptr<QmlHost::Source> source,
        const std::function<void(Gallery::Session&)>& prepare = [](Gallery::Session&) {})
        : session(std::move(source))
    {
        prepare(session);
        session.publish();
        engine.load(QUrl("qrc:/qml/Main.qml"));
        window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
        if (window == nullptr)
            qFatal("the window could not be built");
        window->requestActivate();
    }

    /// Those of the front end follow those of the window. Items that wait for their deletion are left out: they have
    /// lost their context, and Qt 5.15 crashes when one of their properties is read.
    QList<QQuickItem*> items() const
    {
        QList<QQuickItem*> found{window->contentItem()};
        if (session.preview.frontEnd() != nullptr && session.view.page().startsWith("Device"))
            found.append(session.preview.frontEnd()->window()->contentItem());
        for (int index = 0; index < found.size(); ++index) {
            const QList<QQuickItem*> children = found.at(index)->childItems();
            std::copy_if(children.begin(), children.end(), std::back_inserter(found), [](const QQuickItem* child) {
                const QQmlContext* context = qmlContext(child);
                return context == nullptr || context->isValid();
            });
        }
        return found;
    }

    /// The visible texts, one per line.
    QString text() const
    {
        QStringList texts;
        for (const QQuickItem* item : items()) {
            if (item->isVisible())
                texts.append(item->property("text").toString());
        }
        return texts.join('\n');
    }

    /// The first visible item of a C++ class, or null.
    QQuickItem* find(const char* className) const
    {
        const QList<QQuickItem*> all = items();
        const auto isWanted = [&](const QQuickItem* item) { return item->isVisible() && item->inherits(className); };
        const auto found = std::find_if(all.begin(), all.end(), isWanted);
        return found == all.end() ? nullptr : *found;
    }

    Gallery::Session session;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

} // namespace Tests
