#pragma once

#include "Common/TextTools/TextManager.h"
#include "QmlHost/Source.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

namespace QmlHost
{
class Resources;
}

/// Offers the resources of the device to QML, as the singleton `Ui` of the module `Tarnis`:
///
///     TarnisUi ui;
///     ui.publish();
///     QQmlApplicationEngine engine(QUrl("qrc:/main.qml"));
///
/// Use it from the thread of the QGuiApplication, which must exist before and end after it. No function waits for the
/// service except waitUntilReady(): a worker thread asks for the resources and follows their changes. The library's
/// records of failed questions come from that thread. The files are read on the caller's thread.
///
/// Delete the QML engines first. An engine that outlives this object keeps its handlers, which no longer change.
class TarnisUi : public QObject
{
    Q_OBJECT

public:
    /// Whether a source follows the changes of files.
    enum class Files { Ignored, Followed };

    /// The Tarnis module on the system bus, whenever it is there: it is asked when it appears, restarts or changes its
    /// owner. A failed question is repeated after 0.5 s, and then at intervals that double up to 30 s. A service that
    /// hangs is asked as soon as it handles calls again. If the files are followed, it is also asked when one of them
    /// changes, and changes are shown while it hangs; a device does not need that. The service may name any file that
    /// this process may read.
    static std::unique_ptr<QmlHost::Source> service(Files files = Files::Ignored);

    /// A resource directory, without a bus, read by the rules of the service. Its changes are followed. Files that
    /// links lead out of the directory to are not offered; problem() names them.
    static std::unique_ptr<QmlHost::Source> directory(const QString& path);

    /// Starts to ask. The texts come from the directory `texts` beside the color file, or from `textManager`, which the
    /// caller keeps and which must outlive this object and the QML engines.
    explicit TarnisUi(std::unique_ptr<QmlHost::Source> source = service(), TextManager* textManager = nullptr);

    /// Waits for the question in progress, if there is one, and asks no further one. This takes at most 5 s, and only
    /// if the service has begun to hang between two questions: before the first one, the worker does not wait.
    ~TarnisUi() override;

    /// Serves every QML engine of the process that asks for `Ui` from now on. Each gets its own `Ui` and handlers.
    /// The object that was published last serves; engines that have got their `Ui` keep it.
    void publish();

    /// Waits until there is an answer, but not longer than this. The thread's events are handled meanwhile, except user
    /// input. Returns whether there is an answer.
    bool waitUntilReady(int milliseconds);

    /// Whether there has been an answer, also an incomplete one. Until then lookups of QML are empty and log nothing.
    bool isReady() const;

    /// What the handlers are built from. For hosts that show more than QML can look up, such as all names.
    const QmlHost::Answers& answers() const;

    /// The only display size that the dimensions are taken from; invalid, as initially, for the one that is nearest to
    /// the screen. It has no effect while it is not supported.
    QSize displaySize() const;

    /// Changes the display size of all engines.
    void setDisplaySize(const QSize& size);

    /// One sentence on why the last question was not answered completely; empty if it was. What was there stays.
    QString problem() const;

    /// The language of the texts: `en` at first, or that of the text manager that was passed in.
    QString language() const;

    /// Changes the language of all engines. The texts are read on the calling thread.
    void setLanguage(const QString& name);

    /// The languages of the text directory, sorted. Empty if the texts come from the host's text manager.
    QStringList languages() const;

    /// Asks again and returns at once. If nothing has changed, nothing happens.
    void askAgain();

Q_SIGNALS:
    /// isReady() has become true.
    void readyChanged();

    /// answers() has changed. The lookups of QML already use the new ones, but their signals come later. Hosts can
    /// replace lists of names first, so that QML does not look up names that are gone.
    void answersChanged();

    /// displaySize() has changed.
    void displaySizeChanged();

    /// problem() has changed.
    void problemChanged();

    /// language() has changed, or its texts have been read again.
    void languageChanged();

    /// languages() has changed.
    void languagesChanged();

private:
    const std::unique_ptr<QmlHost::Resources> resources;
};
