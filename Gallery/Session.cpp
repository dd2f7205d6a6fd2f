#include "Gallery/Session.h"

#include "Gallery/LastGoodSource.h"
#include "Gallery/frontend/FrontEndView.h"

#include <QEventLoop>
#include <QTimer>
#include <QtQml>

namespace Gallery
{

namespace
{

std::unique_ptr<QmlHost::Source> withCopies(std::unique_ptr<QmlHost::Source> original, Session& session)
{
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
    if (ui.isReady() || !ui.problem().isEmpty())
        return;
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&ui, &TarnisUi::readyChanged, &loop, &QEventLoop::quit);
    QObject::connect(&ui, &TarnisUi::problemChanged, &loop, &QEventLoop::quit);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}

void Session::setFrontEnd(const QString& qmlFile)
{
    view.dropSampleScreens();
    preview.setFile(qmlFile);
}

void Session::publish()
{
    ui.publish();
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "ColorCatalog", &catalogs.colors);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "FontCatalog", &catalogs.fonts);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "DimensionCatalog", &catalogs.dimensions);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "IconCatalog", &catalogs.icons);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "TextCatalog", &catalogs.texts);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "View", &view);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Log", &log);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Preview", &preview);
    qmlRegisterType<FrontEndView>("Tarnis", 1, 0, "FrontEndView");
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Findings", &findings);
}

} // namespace Gallery
