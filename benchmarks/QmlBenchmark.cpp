#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "benchmarks/Screen.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <benchmark/benchmark.h>

#include <memory>

namespace
{

struct Handlers {
    TarnisColorHandler colors{QStringLiteral(RESOURCES "/colors.ini"), nullptr};
    TarnisElementDimensionHandler dimensions{
        {{QSize(1280, 800), QStringLiteral(RESOURCES "/dimensions/1280x800.ini")}}};
};

// A page of a thousand rectangles with these two expressions for height and color.
QByteArray page(const QByteArray& height, const QByteArray& color)
{
    return "import QtQuick 2.15\nimport Device 1.0\n"
           "Item { id: page; width: 640; height: 480\n"
           "  readonly property var dimensions: Dimensions.uiElementDimensions\n"
           "  Repeater { model: 1000; Rectangle { x: index % 40 * 16; y: index / 40 * 16; width: 8; height: "
        + height + "; color: " + color + " } } }";
}

// Measures the time from the compiled page to its first frame.
void firstFrame(benchmark::State& state, const QByteArray& height, const QByteArray& color)
{
    static Handlers handlers;
    qmlRegisterSingletonInstance("Device", 1, 0, "Colors", &handlers.colors);
    qmlRegisterSingletonInstance("Device", 1, 0, "Dimensions", &handlers.dimensions);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(page(height, color), QUrl());
    QQuickWindow window;
    window.resize(640, 480);
    window.show();
    for (auto _ : state) {
        const std::unique_ptr<QObject> object(component.create());
        auto* const item = qobject_cast<QQuickItem*>(object.get());
        if (item == nullptr)
            qFatal("%s", qPrintable(component.errorString()));
        item->setParentItem(window.contentItem());
        const QImage frame = window.grabWindow();
        if (frame.pixelColor(1, 1) != QColor(handlers.colors.getColor("Day", "Accent")))
            qFatal("the page is not drawn");
    }
}

void registerBenchmarks()
{
    const QByteArray constantHeight = "12";
    const QByteArray constantColor = '"' + Handlers().colors.getColor("Day", "Accent").toUtf8() + '"';
    const QByteArray call = "Colors.getColor(\"Day\", \"Accent\")";
    const QByteArray binding = "Dimensions.uiElementDimensions[\"Spacing/small\"]";
    const QByteArray cachedBinding = "page.dimensions[\"Spacing/small\"]";
    const auto add = [](const char* name, const QByteArray& height, const QByteArray& color) {
        benchmark::RegisterBenchmark(name, firstFrame, height, color)->Unit(benchmark::kMillisecond);
    };
    add("constants", constantHeight, constantColor);
    add("calls of getColor", constantHeight, call);
    add("bindings", binding, constantColor);
    add("bindings on a cached map", cachedBinding, constantColor);
    add("bindings and calls", binding, call);
}

} // namespace

int main(int argc, char* argv[])
{
    const Benchmarks::Screen screen;
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
