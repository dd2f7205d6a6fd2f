#pragma once

#include "Gallery/compare/Comparison.h"
#include "QmlHost/TarnisUi.h"

#include <QObject>
#include <QThreadPool>
#include <QVariantList>

namespace Gallery
{

/// Compares the shown resources with those of another directory, and again whenever one of them changes. The QML
/// singleton `Comparison` of the module `Tarnis.Gallery`. Reads files on a worker thread.
class LiveComparison : public QObject
{
    Q_OBJECT

    /// Increases with every comparison: read the list again.
    Q_PROPERTY(int revision READ revision NOTIFY changed)
    Q_PROPERTY(QString oldDirectory READ oldDirectory CONSTANT)
    /// What has changed, in a sentence; empty before the first comparison.
    Q_PROPERTY(QString verdict READ verdict NOTIFY changed)
    /// Why the old directory cannot be read completely; empty if it can.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    /// The names of the kinds that have changes.
    Q_PROPERTY(QStringList kinds READ kinds NOTIFY changed)

public:
    /// `shownUi`, the new state, must outlive this object.
    LiveComparison(const TarnisUi& shownUi, const QString& oldDirectoryPath);

    int revision() const;
    QString oldDirectory() const;
    QString verdict() const;
    QString problem() const;
    QStringList kinds() const;

    /// The changes of a kind whose name or one of whose values contains the text `search`; upper and lower case are
    /// equal. Maps with `kind`, `type`, `name`, `variant`, `difference`, `old` and `new`. A side is a map with `text`
    /// and `url`, the file of an icon; it is empty if there is no value.
    Q_INVOKABLE QVariantList changes(const QString& kind, const QString& search) const;

    /// The font family of a group on one side.
    Q_INVOKABLE QString family(const QString& fontName, bool isNew) const;

Q_SIGNALS:
    void changed();
    void problemChanged();

    /// Comes from the worker thread.
    void compared(const Gallery::Comparison& fresh);

private:
    void start();
    void take(const Comparison& fresh);

    const TarnisUi& newUi;
    const QString oldPath;
    TarnisUi oldUi;
    Comparison comparison;
    int currentRevision = 0;
    bool isRunning = false;
    bool isOutdated = false;
    QThreadPool pool; // the last member, because its destructor waits
};

} // namespace Gallery
