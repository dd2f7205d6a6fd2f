#pragma once

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

/// What the service says of its resources. No handler asks it anything later.
struct ServiceAnswers {
    QString colorIniFilePath;
    QString fontIniFilePath;
    QList<QPair<QSize, QString>> displaySizes;
    QString iconBasePath;
    QString iconMappingTable;
    bool isReached = true;
};

/// The library wired up: asks the service where the resources lie, builds the handlers with its answers and offers
/// them to QML as the singleton `Ui` of the module `Tarnis`. A host of your own may begin as a copy of this class.
class UiResources : public QObject
{
    Q_OBJECT

    Q_PROPERTY(TarnisColorHandler* colors READ colors NOTIFY reloaded)
    Q_PROPERTY(TarnisFontHandler* fonts READ fonts NOTIFY reloaded)
    Q_PROPERTY(TarnisElementDimensionHandler* dimensions READ dimensions NOTIFY reloaded)
    Q_PROPERTY(TarnisTextHandler* texts READ texts NOTIFY reloaded)
    Q_PROPERTY(TarnisIconHandler* icons READ icons NOTIFY reloaded)

public:
    /// Asks the service: five D-Bus calls of 5 s at the most.
    explicit UiResources(const QString& language);
    ~UiResources() override;

    /// Makes the handlers known to every QML engine of the process.
    void publish();

    /// Asks the service again and replaces every handler, unless `accept`, called in between, refuses the new ones.
    bool reload(const std::function<bool(const ServiceAnswers&)>& accept);

    void setLanguage(const QString& name);

    /// As if the service supported this display only; an invalid size means all that it supports.
    void setDisplay(const QSize& size);

    TarnisColorHandler* colors() const;
    TarnisFontHandler* fonts() const;
    TarnisElementDimensionHandler* dimensions() const;
    TarnisTextHandler* texts() const;
    TarnisIconHandler* icons() const;

    const ServiceAnswers& answers() const;
    const TextManager& textManager() const;

    /// The directory that holds colours, icons and texts; null when the service named none of its files.
    QString directory() const;

Q_SIGNALS:
    void reloaded();

private:
    struct Handlers;

    QSize display;
    std::unique_ptr<Handlers> handlers;
};
