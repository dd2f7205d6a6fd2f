#pragma once

#include "Gallery/findings/Editor.h"
#include "ResourceCheck/Finding.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QVariantList>
#include <QVector>

namespace Gallery
{

/// What the checker says of the resource directory, as its files are now. The QML singleton `Findings` of the module
/// `Tarnis.Gallery`. The rules are applied on a thread of their own.
class Findings : public QObject
{
    Q_OBJECT

    Q_PROPERTY(int errors READ errors NOTIFY changed)
    Q_PROPERTY(int warnings READ warnings NOTIFY changed)
    /// How often the rules have been applied: read the rows again when it increases.
    Q_PROPERTY(int revision READ revision NOTIFY changed)
    /// What is wrong with the configuration file of the directory or with the last call of open(); or empty.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    Findings();

    /// The program for open().
    void setEditor(const Editor& fileEditor);

    /// Where the QML files are that use the resources.
    void setQmlDirectories(const QStringList& directories);

    /// Nothing is checked before this call.
    Q_INVOKABLE void start();

    /// Applies the rules to this directory, again if it is the same one. While they are applied, further calls are
    /// collected into one. An empty path changes nothing.
    void check(const QString& resourceDirectory);

    /// Applies the rules again, because a QML file may have changed.
    void checkAgain();

    int errors() const;
    int warnings() const;
    int revision() const;
    bool isRunning() const;
    QString problem() const;

    /// The findings of this severity, or all if it is empty, that contain the text `search`, sorted by place: maps with
    /// `file`, `path`, `line`, `column`, `severity`, `rule` and `message`. Before those of each file comes a map with
    /// `isHeading`, `file`, `path` and `count`.
    Q_INVOKABLE QVariantList rows(const QString& severity, const QString& search) const;

    /// Opens the file in the editor.
    Q_INVOKABLE void open(const QString& path, int line, int column);

Q_SIGNALS:
    void changed();
    /// Comes from the thread of the rules. `problem` is what is wrong with the configuration file.
    void checked(const QVector<ResourceCheck::Finding>& findings, const QString& problem);

private:
    void run();
    void finish(const QVector<ResourceCheck::Finding>& newFindings, const QString& newProblem);
    int count(ResourceCheck::Severity severity) const;
    QString fileName(const QString& path) const;

    Editor editor;
    QStringList qmlDirectories;
    QString directory;
    bool isStarted = false;
    bool isBusy = false;
    bool isOutdated = false; // a change came after the run had begun
    int currentRevision = 0;
    QVector<ResourceCheck::Finding> findings;
    QString settingsProblem;
    QString editorProblem;
    QThreadPool thread; // the last member, because its destructor waits for the run
};

} // namespace Gallery

Q_DECLARE_METATYPE(ResourceCheck::Finding)
