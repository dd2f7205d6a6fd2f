#include "Gallery/Session.h"

#include "Gallery/LastGoodSource.h"
#include "Gallery/frontend/FrontEndView.h"

#include <QEventLoop>
#include <QTimer>
#include <QtQml>

namespace Gallery
{

Session::Session(std::unique_ptr<QmlHost::Source> source)
    : ui(std::make_unique<LastGoodSource>(std::move(source)))
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
}

} // namespace Gallery
