#pragma once

#include "Gallery/catalog/Catalog.h"
#include "Gallery/catalog/DimensionOutliers.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"

#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

namespace Gallery
{

/// The dimensions of all displays.
class DimensionCatalog : public Catalog
{
    Q_OBJECT

    /// The names of the supported display sizes, in the order of the service.
    Q_PROPERTY(QStringList displays READ displays NOTIFY changed)

public:
    explicit DimensionCatalog(const TarnisUi& tarnisUi);

    QStringList displays() const;

    /// Names as in `uiElementDimensions`, of all displays, sorted.
    Q_INVOKABLE QStringList names(const QString& search) const;

    /// The value in the display's file, or an invalid one if the name is missing there.
    Q_INVOKABLE QVariant value(const QString& display, const QString& name) const;

    /// What is remarkable about the value, by the rules of DimensionOutliers; null if nothing is.
    Q_INVOKABLE QString remark(const QString& display, const QString& name) const;

    /// The name of the display whose dimensions the handler offers; empty if there is none. Null gives the empty name.
    Q_INVOKABLE QString shownDisplay(TarnisElementDimensionHandler* handler) const;

    /// The dimension as a box in pixels: width and height of the same element, such as `Tile/width` and `Tile/height`
    /// or `Keypad/keyWidth` and `Keypad/keyHeight`. 0 if the element has no such dimension. Any other dimension is a
    /// width.
    Q_INVOKABLE QSize box(const QString& display, const QString& name) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    int pixels(const QString& display, const QString& name) const;

    QStringList displayNames;
    QMap<QString, QVariantMap> valuesByDisplay;
    DimensionOutliers outliers;
};

} // namespace Gallery
