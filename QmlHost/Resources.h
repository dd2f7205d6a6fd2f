#pragma once

#include "Common/TextTools/TextManager.h"
#include "QmlHost/Source.h"

#include <QObject>
#include <QStringList>
#include <QThread>

#include <memory>

namespace QmlHost
{

/// What all engines share: the answers of the source, which works on a worker thread, and the language.
class Resources : public QObject
{
    Q_OBJECT

public:
    /// Starts the source. The caller keeps the text manager, which may be null.
    Resources(std::unique_ptr<Source> answerSource, TextManager* hostTextManager);

    /// Waits for the source's call in progress.
    ~Resources() override;

    /// The last answer to each question.
    const Answers& answers() const;

    /// The display sizes that the dimensions are taken from: the only one, if it is supported, otherwise all.
    QList<QPair<QSize, QString>> usedDisplaySizes() const;

    QSize onlyDisplaySize() const;
    void setOnlyDisplaySize(const QSize& size);

    /// Whether any question has been answered.
    bool isReady() const;

    QString problem() const;

    QString language() const;
    void setLanguage(const QString& name);

    /// Empty if the texts come from the host.
    QStringList languages() const;

    /// The host's, or null.
    const TextManager* textManager() const;

Q_SIGNALS:
    /// Emit it to let the source ask again.
    void askRequested();

    /// Every Ui takes the answers and releases its outdated handlers.
    void answersChanged();

    /// No Ui has outdated handlers any more: the host, then each Ui tells others of the change.
    void answersTaken();

    void onlyDisplaySizeChanged();
    void readyChanged();
    void problemChanged();
    void languageChanged();
    void languagesChanged();

private:
    void take(const Answers& fresh, const QString& freshProblem);

    TextManager* const givenTextManager;
    Answers lastAnswers;
    QString lastProblem;
    QString languageName;
    QSize onlySize;
    Source* const source; // lives on the thread and is deleted at its end
    QThread thread;
};

} // namespace QmlHost
