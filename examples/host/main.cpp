// A complete host: QML reads the resources of the device from the singleton Ui of the module Tarnis.
#include "QmlHost/TarnisUi.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    TarnisUi ui;
    ui.publish();
    const QQmlApplicationEngine engine(QUrl("qrc:/main.qml"));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
