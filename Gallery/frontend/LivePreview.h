#pragma once

#include "Gallery/View.h"
#include "Gallery/frontend/FrontEnd.h"
#include "Gallery/frontend/FrontEndState.h"
#include "QmlHost/DirectoryWatcher.h"
#include "QmlHost/TarnisUi.h"

#include <QObject>
#include <QSize>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace Gallery
{

/// The front end on the page Device. When one of its files changes, it is loaded again, into a new engine. The new
/// version takes the place and the state of the old one if it was loaded without an error. The QML singleton `Preview`
/// of the module `Tarnis.Gallery`.
class LivePreview : public QObject
{
    Q_OBJECT

    /// Why the file is not shown in its present form; empty if it is.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    /// Whether it is the sample front end.
    Q_PROPERTY(bool isSample READ isSample CONSTANT)
    /// What the front end is called.
    Q_PROPERTY(QString name READ name CONSTANT)
    /// Whether there is a version to show.
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    /// Of the shown version, in pixels.
    Q_PROPERTY(QSize size READ size NOTIFY sizeChanged)

public:
    /// Both must outlive this object.
    LivePreview(TarnisUi& tarnisUi, View& galleryView);
    ~LivePreview() override;

    /// That of the sample front end if the path is empty.
    static QUrl urlOf(const QString& path);

    /// Shows this file instead of the sample front end. Call it before load().
    void setFile(const QString& path);

    /// Loads the first version, unless this has been done.
    void load();

    /// The shown version; null before load() and until a version was loaded without an error.
    FrontEnd* frontEnd() const;

    bool isSample() const;
    QString name() const;
    QString problem() const;
    bool isLoaded() const;
    QSize size() const;

    /// Loads the file again, for files whose changes are not noticed.
    Q_INVOKABLE void reload();

    /// Loads the file again, without the state of the old version.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void changed();
    void sizeChanged();

    /// frontEnd() is another one.
    void frontEndChanged();

    /// A file has changed while it was read.
    void outdated();

private:
    struct Version;

    void build(bool keepsState);
    void swap(std::unique_ptr<Version> fresh, bool keepsState);
    void lookAround();
    void followFiles(const FrontEnd& frontEnd);
    void reloadIfChanged();
    void followView();
    void followSize();
    void followLanguage();

    TarnisUi& ui;
    View& view;
    QUrl url;
    QmlHost::DirectoryWatcher watcher;
    QStringList files;      // that the version that was built last has read
    QByteArray fingerprint; // of the files and their neighbors, before they were read
    QTimer delay;           // until the objects that an update has created are looked at
    std::unique_ptr<Version> version;
    QString lastProblem;
    QString shownScreen;
    bool isStarted = false;
};

} // namespace Gallery
