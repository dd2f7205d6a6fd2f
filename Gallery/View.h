#pragma once

#include "QmlHost/TarnisUi.h"

#include <QHash>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

namespace Gallery
{

/// What the gallery currently shows. The QML singleton `View` of the module `Tarnis.Gallery`.
class View : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QStringList pages READ pages NOTIFY changed)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY changed)
    Q_PROPERTY(QString context READ context WRITE setContext NOTIFY changed)
    /// The text to search for on the current page.
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY changed)
    /// The name of the display size, or empty for the one nearest to the real screen.
    Q_PROPERTY(QString display READ display WRITE setDisplay NOTIFY changed)
    /// In pixels; invalid if `display` is empty.
    Q_PROPERTY(QSize displaySize READ displaySize NOTIFY changed)
    /// The look of the gallery itself: "light" or "dark".
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY changed)
    /// The size of the window when it opens, in pixels; invalid for the one that suits the screen.
    Q_PROPERTY(QSize windowSize READ windowSize WRITE setWindowSize NOTIFY windowSizeChanged)

public:
    /// `tarnisUi` must outlive the view.
    explicit View(TarnisUi& tarnisUi);

    QStringList pages() const;
    /// Leaves out the pages for the further screens of the sample front end.
    void dropSampleScreens();
    /// Adds a page before the last one, the log.
    void addPage(const QString& name);
    QString page() const;
    void setPage(const QString& name);
    QString context() const;
    void setContext(const QString& name);
    QString search() const;
    void setSearch(const QString& text);
    QString display() const;
    void setDisplay(const QString& name);
    QSize displaySize() const;
    static QStringList themes();
    QString theme() const;
    void setTheme(const QString& name);
    QSize windowSize() const;
    void setWindowSize(const QSize& size);

    /// Asks for the resources again.
    Q_INVOKABLE void reload();

    /// Puts the text on the clipboard and emits copied().
    Q_INVOKABLE void copy(const QString& text);

Q_SIGNALS:
    void changed();
    void windowSizeChanged();
    void copied(const QString& text);

private:
    TarnisUi& ui;
    QStringList pageNames;
    QString pageName;
    QString contextName;
    QString themeName;
    QSize initialWindowSize;
    QHash<QString, QString> searches; // by page
};

} // namespace Gallery
