#pragma once

#include "Gallery/frontend/FileRecorder.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QQmlError>
#include <QSize>
#include <QStringList>
#include <QVariantMap>
#include <QWindow>

#include <memory>

class QQmlComponent;
class QQuickWindow;

namespace Gallery
{

/// One version of a front end: an engine of its own and the objects of one QML file. They are drawn in a window that is
/// never shown. The root object is an Item, which fills the window, or a Window.
///
/// Use it on the thread of the QGuiApplication, with the software scene graph.
class FrontEnd : public QObject
{
    Q_OBJECT

public:
    /// Loads the file, which blocks. `displaySize` is as in resize(). The root object gets the values of those
    /// `properties` that it has.
    FrontEnd(const QUrl& url, const QSize& displaySize, const QVariantMap& properties);
    ~FrontEnd() override;

    /// What is wrong, one fault per line, as `file:line: text`. Empty if everything was loaded.
    QString problem() const;

    /// Null if the root object is missing or of another kind.
    QQuickWindow* window() const;

    /// Null if it could not be created.
    QObject* root() const;

    /// The local files that it has read so far, see FileRecorder::files().
    QStringList files() const;

    /// Gives the window this size. If it is invalid, a Window gets back the size that it had at first, and an Item the
    /// supported display size that is nearest to the screen.
    void resize(const QSize& displaySize);

    /// Writes a property of the root object, if there is one of this name.
    void set(const QString& property, const QVariant& value);

    /// Whether rows, anchors and texts run from right to left.
    void setMirrored(bool isMirrored);

    /// Draws the window as it is now.
    QImage picture();

Q_SIGNALS:
    /// picture() would be another one. Comes once until the next call.
    void updateRequested();

    /// picture() has been called.
    void drawn();

    /// The size of the window has changed.
    void sizeChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void create(QQmlComponent& component, const QVariantMap& properties);
    void adopt();
    void followWindow();
    void spreadSize();
    void findFailedLoaders();
    QSize nearestDisplaySize();

    FileRecorder recorder;
    QQmlEngine engine;
    QList<QQmlError> errors;
    QList<QQmlError> warnings;
    QObject* object = nullptr;                // deleted before the window and the engine
    QWindow host;                             // never shown, so that its child windows are not either
    std::unique_ptr<QQuickWindow> itemWindow; // of a root object that is an Item
    QQuickWindow* shownWindow = nullptr;
    QSize ownSize;
};

} // namespace Gallery
