#pragma once

#include "Gallery/DirectoryWatcher.h"
#include "Gallery/UiResources.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace Gallery
{

class MessageLog;

/// What the gallery currently shows; reloads it when the resource directory changes. The QML singleton `View` of the
/// module `Tarnis`.
class View : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QStringList pages READ pages CONSTANT)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY changed)
    Q_PROPERTY(QString context READ context WRITE setContext NOTIFY changed)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed)
    /// The name of the display size, or empty for the one nearest to the real screen.
    Q_PROPERTY(QString display READ display WRITE setDisplay NOTIFY changed)
    /// In pixels; invalid if `display` is empty.
    Q_PROPERTY(QSize displaySize READ displaySize NOTIFY changed)
    /// The faults of the resources, or why the service cannot be reached; empty if there are none.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    /// The others must outlive the view.
    View(UiResources& uiResources, MessageLog& messageLog);

    QStringList pages() const;
    QString page() const;
    void setPage(const QString& name);
    QString context() const;
    void setContext(const QString& name);
    QString language() const;
    void setLanguage(const QString& name);
    QString display() const;
    void setDisplay(const QString& name);
    QSize displaySize() const;
    QString problem() const;

    /// Asks the service again. If there is a fault, `problem` reports it and the last good view stays.
    Q_INVOKABLE void reload();

    /// Puts the text on the clipboard and emits copied().
    Q_INVOKABLE void copy(const QString& text);

Q_SIGNALS:
    void changed();
    void copied(const QString& text);
    void problemFound();

private:
    void judge(const ServiceAnswers& answers, const QStringList& faults);

    UiResources& resources;
    MessageLog& log;
    QString pageName;
    QString contextName;
    QString problemText;
    bool hasGoodView = false;
    DirectoryWatcher watcher;
    QTimer quietPeriod;
};

} // namespace Gallery
