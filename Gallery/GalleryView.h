#pragma once

#include "Gallery/DirectoryWatcher.h"
#include "Gallery/UiResources.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTimer>

class MessageLog;

/// What the gallery shows at the moment, and its following of the resource directory. The QML singleton `View` of the
/// module `Tarnis`.
class GalleryView : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QStringList pages MEMBER pages CONSTANT)
    Q_PROPERTY(QString page MEMBER page NOTIFY changed)
    Q_PROPERTY(QString context MEMBER context NOTIFY changed)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed)
    /// `WxH`, or empty: the display nearest to the real screen.
    Q_PROPERTY(QString display READ display WRITE setDisplay NOTIFY changed)
    /// What is wrong with the resources, or why they cannot be asked for; empty when all is well.
    Q_PROPERTY(QString problem MEMBER problem NOTIFY changed)

public:
    /// The others must outlive the view.
    GalleryView(UiResources& resources, MessageLog& log);

    QString language() const;
    void setLanguage(const QString& name);
    QString display() const;
    void setDisplay(const QString& name);

    /// Asks the service again. If anything is faulty, the problem is said and the last good view stays.
    Q_INVOKABLE void reload();

    /// Puts the text on the clipboard and emits copied().
    Q_INVOKABLE void copy(const QString& text);

    QStringList pages;
    QString page;
    QString context;
    QString problem;

Q_SIGNALS:
    void changed();
    void copied(const QString& text);
    void problemFound();

private:
    void judge(const ServiceAnswers& answers, const QStringList& faults);

    UiResources& resources;
    MessageLog& log;
    QString displayName;
    bool hasGoodView = false;
    DirectoryWatcher watcher;
    QTimer quietPeriod;
};
