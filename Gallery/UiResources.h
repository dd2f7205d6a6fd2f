#pragma once

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QObject>
#include <QString>

#include <memory>

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

    /// Why the service could not be asked, as a sentence; empty when it was.
    Q_PROPERTY(QString problem READ problem NOTIFY reloaded)

public:
    /// Makes the five D-Bus calls of reload(). `language` names the texts' language.
    explicit UiResources(const QString& language);
    ~UiResources() override;

    TarnisColorHandler* colors() const;
    TarnisFontHandler* fonts() const;
    TarnisElementDimensionHandler* dimensions() const;
    TarnisTextHandler* texts() const;
    TarnisIconHandler* icons() const;
    QString problem() const;

    QString colorIniFilePath() const;
    QString fontIniFilePath() const;
    QString iconMappingTable() const;

    /// Asks the service again and replaces every handler. Blocks for five D-Bus calls.
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void reloaded();

private:
    struct Handlers;

    QString language;
    std::unique_ptr<Handlers> handlers;
};
