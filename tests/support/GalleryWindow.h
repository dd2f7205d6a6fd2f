#pragma once

#include "Gallery/Session.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

namespace Tests
{

/// The gallery's window in the process of the test.
class GalleryWindow
{
public:
    /// Does not wait for the source. Compares with the old directory unless its path is empty.
    explicit GalleryWindow(std::unique_ptr<QmlHost::Source> source, const QString& oldDirectory = QString())
        : session(std::move(source))
    {
        if (!oldDirectory.isEmpty())
            session.compareWith(oldDirectory);
        session.publish();
        engine.load(QUrl("qrc:/qml/Main.qml"));
        window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
        if (window == nullptr)
            qFatal("the window could not be built");
        window->requestActivate();
    }

    QList<QQuickItem*> items() const
    {
        QList<QQuickItem*> found{window->contentItem()};
        for (int index = 0; index < found.size(); ++index)
            found += found.at(index)->childItems();
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
