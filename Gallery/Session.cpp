#include "Gallery/Session.h"

#include "Gallery/LastGoodSource.h"
#include "Gallery/frontend/FrontEndView.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>
#include <QtQml>

namespace Gallery
{

namespace
{

// Not `Tarnis`: a component of a user's front end may have one of these names.
constexpr char module[] = "Tarnis.Gallery";

std::unique_ptr<QmlHost::Source> withCopies(std::unique_ptr<QmlHost::Source> original, Session& session)
{
    // Qt takes a file with the same time for the same file. Exports often give all files the same time.
    qputenv("QML_DISABLE_DISK_CACHE", "1"); // before any thread is started
    auto source = std::make_unique<LastGoodSource>(std::move(original));
    QObject::connect(source.get(), &LastGoodSource::filesRead, &session.log, &MessageLog::showOriginals);
    QObject::connect(source.get(), &LastGoodSource::filesRead, &session.findings, &Findings::check);
    return source;
}

} // namespace

Session::Session(std::unique_ptr<QmlHost::Source> source)
    : ui(withCopies(std::move(source), *this))
    , catalogs(ui)
    , view(ui)
    , preview(ui, view)
{
}

void Session::waitForSource(int milliseconds)
{
    QEventLoop loop;
    const auto isDone = [this] {
        return (ui.isReady() || !ui.problem().isEmpty()) && (!comparison || comparison->revision() > 0);
    };
    const auto quitWhenDone = [&] {
        if (isDone())
            loop.quit();
    };
    QObject::connect(&ui, &TarnisUi::readyChanged, &loop, quitWhenDone);
    QObject::connect(&ui, &TarnisUi::problemChanged, &loop, quitWhenDone);
    if (comparison)
        QObject::connect(&*comparison, &LiveComparison::changed, &loop, quitWhenDone);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    if (!isDone())
        loop.exec();
}

void Session::compareWith(const QString& oldDirectory)
{
    comparison.emplace(ui, oldDirectory);
    view.addPage(QStringLiteral("Compare"));
}

void Session::setFrontEnd(const QString& qmlFile)
{
    view.dropSampleScreens();
    preview.setFile(qmlFile);
    findings.setQmlDirectories({QFileInfo(qmlFile).path()});
    QObject::connect(&preview, &LivePreview::frontEndChanged, &findings, &Findings::checkAgain);
    QObject::connect(&preview, &LivePreview::changed, &findings, &Findings::checkAgain);
}

void Session::publish()
{
    ui.publish();
    qmlRegisterSingletonInstance(module, 1, 0, "ColorCatalog", &catalogs.colors);
    qmlRegisterSingletonInstance(module, 1, 0, "FontCatalog", &catalogs.fonts);
    qmlRegisterSingletonInstance(module, 1, 0, "DimensionCatalog", &catalogs.dimensions);
    qmlRegisterSingletonInstance(module, 1, 0, "IconCatalog", &catalogs.icons);
    qmlRegisterSingletonInstance(module, 1, 0, "TextCatalog", &catalogs.texts);
    if (comparison)
        qmlRegisterSingletonInstance(module, 1, 0, "Comparison", &*comparison);
    qmlRegisterSingletonInstance(module, 1, 0, "View", &view);
    qmlRegisterSingletonInstance(module, 1, 0, "Log", &log);
    qmlRegisterSingletonInstance(module, 1, 0, "Preview", &preview);
    qmlRegisterType<FrontEndView>(module, 1, 0, "FrontEndView");
    qmlRegisterSingletonInstance(module, 1, 0, "Findings", &findings);
}

} // namespace Gallery
