#include "QmlHost/TarnisUi.h"

#include "QmlHost/DirectorySource.h"
#include "QmlHost/ServiceSource.h"
#include "QmlHost/Ui.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>

using QmlHost::Resources;

namespace
{

// Qt's registry of QML types is one for the whole process, and its callback gets nothing but the engine, which may
// exist before and after any TarnisUi. So what it returns to an engine must be found from here. Registering the type
// again for each TarnisUi would need no variable, but components that an older engine loads later would get a second
// Ui.
QPointer<Resources>& publishedResources()
{
    static QPointer<Resources> resources;
    return resources;
}

QObject* newUi(QQmlEngine* engine, QJSEngine* /*scriptEngine*/)
{
    Resources* const resources = publishedResources();
    return resources != nullptr ? new QmlHost::Ui(*resources, *engine) : nullptr;
}

} // namespace

TarnisUi::TarnisUi(std::unique_ptr<QmlHost::Source> source, TextManager* textManager)
    : resources(std::make_unique<Resources>(std::move(source), textManager))
{
    connect(resources.get(), &Resources::readyChanged, this, &TarnisUi::readyChanged);
    connect(resources.get(), &Resources::answersTaken, this, &TarnisUi::answersChanged);
    connect(resources.get(), &Resources::onlyDisplaySizeChanged, this, &TarnisUi::displaySizeChanged);
    connect(resources.get(), &Resources::problemChanged, this, &TarnisUi::problemChanged);
    connect(resources.get(), &Resources::languageChanged, this, &TarnisUi::languageChanged);
    connect(resources.get(), &Resources::languagesChanged, this, &TarnisUi::languagesChanged);
}

TarnisUi::~TarnisUi() = default;

std::unique_ptr<QmlHost::Source> TarnisUi::service(Files files)
{
    return std::make_unique<QmlHost::ServiceSource>(files == Files::Followed);
}

std::unique_ptr<QmlHost::Source> TarnisUi::directory(const QString& path)
{
    return std::make_unique<QmlHost::DirectorySource>(path);
}

void TarnisUi::publish()
{
    publishedResources() = resources.get();
    static const int type = qmlRegisterSingletonType<QmlHost::Ui>("Tarnis", 1, 0, "Ui", newUi);
    Q_UNUSED(type)
}

bool TarnisUi::waitUntilReady(int milliseconds)
{
    QEventLoop loop;
    QTimer timer;
    connect(this, &TarnisUi::readyChanged, &loop, &QEventLoop::quit);
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    if (!isReady())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return isReady();
}

bool TarnisUi::isReady() const
{
    return resources->isReady();
}

const QmlHost::Answers& TarnisUi::answers() const
{
    return resources->answers();
}

QSize TarnisUi::displaySize() const
{
    return resources->onlyDisplaySize();
}

void TarnisUi::setDisplaySize(const QSize& size)
{
    resources->setOnlyDisplaySize(size);
}

QString TarnisUi::problem() const
{
    return resources->problem();
}

QString TarnisUi::language() const
{
    return resources->language();
}

void TarnisUi::setLanguage(const QString& name)
{
    resources->setLanguage(name);
}

QStringList TarnisUi::languages() const
{
    return resources->languages();
}

void TarnisUi::askAgain()
{
    Q_EMIT resources->askRequested();
}
