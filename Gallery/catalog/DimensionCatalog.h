#pragma once

#include "Gallery/catalog/Catalog.h"

#include <QMap>
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

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    QStringList displayNames;
    QMap<QString, QVariantMap> valuesByDisplay;
};

} // namespace Gallery
