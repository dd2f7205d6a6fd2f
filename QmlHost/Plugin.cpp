#include "QmlHost/Plugin.h"

#include "QmlHost/TarnisUi.h"
#include "QmlHost/Ui.h"

#include <QCoreApplication>

namespace QmlHost
{

void Plugin::registerTypes(const char* uri)
{
    // Called on a thread of the QML engine; the function is called on the thread of the application.
    qmlRegisterSingletonType<Ui>(uri, 1, 0, "Ui", [this](QQmlEngine* engine, QJSEngine*) { return newUi(*engine); });
}

QObject* Plugin::newUi(QQmlEngine& engine)
{
    if (resources.isNull()) {
        const QString directory = qEnvironmentVariable("TARNIS_RESOURCES");
        resources = new Resources(directory.isEmpty() ? TarnisUi::service() : TarnisUi::directory(directory), nullptr);
        resources->setParent(QCoreApplication::instance());
        // While the application still exists: afterwards the worker thread could not delete the source.
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, resources,
                [published = resources.data()] { delete published; });
    }
    return new Ui(*resources, engine);
}

} // namespace QmlHost
