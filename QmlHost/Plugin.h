#pragma once

#include "QmlHost/Resources.h"

#include <QPointer>
#include <QQmlExtensionPlugin>

namespace QmlHost
{

/// The QML module `Tarnis` for programs that have no host, such as `qml` and `qmltestrunner`: `Ui` reads the directory
/// that the environment variable `TARNIS_RESOURCES` names, otherwise it asks the service.
class Plugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override;

private:
    QObject* newUi(QQmlEngine& engine);

    QPointer<Resources> resources; // of all engines; child of the application
};

} // namespace QmlHost
