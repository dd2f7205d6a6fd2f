#include "QmlHost/Resources.h"

#include "ResourceFormat/Language.h"

#include <utility>

namespace QmlHost
{

Resources::Resources(std::unique_ptr<Source> answerSource, TextManager* hostTextManager)
    : givenTextManager(hostTextManager)
    , languageName(ResourceFormat::Language::secondFallback())
    , source(answerSource.release())
{
    if (givenTextManager != nullptr)
        connect(givenTextManager, &TextManagerBase::languageReloaded, this, &Resources::languageChanged);
    source->moveToThread(&thread);
    connect(&thread, &QThread::started, source, &Source::start);
    connect(this, &Resources::askRequested, source, &Source::ask);
    connect(&thread, &QThread::finished, source, &QObject::deleteLater);
    connect(source, &Source::answered, this, &Resources::take);
    thread.start();
}

Resources::~Resources()
{
    thread.requestInterruption();
    thread.quit();
    thread.wait();
}

const Answers& Resources::answers() const
{
    return lastAnswers;
}

QList<QPair<QSize, QString>> Resources::usedDisplaySizes() const
{
    for (const auto& displaySize : lastAnswers.displaySizes.value) {
        if (displaySize.first == onlySize)
            return {displaySize};
    }
    return lastAnswers.displaySizes.value;
}

QSize Resources::onlyDisplaySize() const
{
    return onlySize;
}

void Resources::setOnlyDisplaySize(const QSize& size)
{
    if (size == onlySize)
        return;
    onlySize = size;
    Q_EMIT onlyDisplaySizeChanged();
}

bool Resources::isReady() const
{
    return lastAnswers.isAnyAnswered();
}

QString Resources::problem() const
{
    return lastProblem;
}

QString Resources::language() const
{
    return givenTextManager != nullptr ? givenTextManager->getLanguageName() : languageName;
}

void Resources::setLanguage(const QString& name)
{
    if (name == language())
        return;
    if (givenTextManager != nullptr) {
        givenTextManager->setLanguage(name);
        return;
    }
    languageName = name;
    Q_EMIT languageChanged();
}

QStringList Resources::languages() const
{
    return givenTextManager != nullptr ? QStringList() : lastAnswers.languages;
}

const TextManager* Resources::textManager() const
{
    return givenTextManager;
}

void Resources::take(const Answers& fresh, const QString& freshProblem)
{
    const bool wasReady = isReady();
    const QStringList oldLanguages = languages();
    const QString oldProblem = std::exchange(lastProblem, freshProblem);
    const Answers oldAnswers = lastAnswers;
    lastAnswers = fresh;
    lastAnswers.complete(oldAnswers);
    // Everything is up to date before the first signal.
    if (!(lastAnswers == oldAnswers)) {
        Q_EMIT answersChanged();
        Q_EMIT answersTaken();
    }
    if (languages() != oldLanguages)
        Q_EMIT languagesChanged();
    if (lastProblem != oldProblem)
        Q_EMIT problemChanged();
    if (isReady() != wasReady)
        Q_EMIT readyChanged();
}

} // namespace QmlHost
