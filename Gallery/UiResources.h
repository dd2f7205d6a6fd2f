#pragma once

#include "Common/TextTools/TextManager.h"
#include "Gallery/ServiceAnswers.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QObject>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace Gallery
{

/// The handlers of the library, built with the service's answers: the QML singleton `Ui` of the module `Tarnis`. Copy
/// this class as a starting point for your own host.
class UiResources : public QObject
{
    Q_OBJECT

    Q_PROPERTY(TarnisColorHandler* colors READ colors NOTIFY reloaded)
    Q_PROPERTY(TarnisFontHandler* fonts READ fonts NOTIFY reloaded)
    Q_PROPERTY(TarnisElementDimensionHandler* dimensions READ dimensions NOTIFY reloaded)
    Q_PROPERTY(TarnisTextHandler* texts READ texts NOTIFY reloaded)
    Q_PROPERTY(TarnisIconHandler* icons READ icons NOTIFY reloaded)

public:
    /// Asks the service; see ServiceAnswers::ask().
    explicit UiResources(const QString& language);
    ~UiResources() override;

    /// Asks the service again and replaces every handler if `accept` returns true. `accept` is called when the new
    /// handlers have read their files.
    bool reload(const std::function<bool(const ServiceAnswers&)>& accept);

    void setLanguage(const QString& name);

    /// The only display size that the dimensions are taken from; invalid, as initially, for all supported ones.
    QSize displaySize() const;
    void setDisplaySize(const QSize& size);

    TarnisColorHandler* colors() const;
    TarnisFontHandler* fonts() const;
    TarnisElementDimensionHandler* dimensions() const;
    TarnisTextHandler* texts() const;
    TarnisIconHandler* icons() const;

    const ServiceAnswers& answers() const;
    const TextManager& textManager() const;

Q_SIGNALS:
    void reloaded();

private:
    struct Handlers;

    QSize onlyDisplaySize;
    std::unique_ptr<Handlers> handlers;
};

} // namespace Gallery
