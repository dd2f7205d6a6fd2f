#pragma once

#include "Gallery/catalog/Catalog.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QString>
#include <QStringList>

namespace Gallery
{

/// The icons of the mapping table.
class IconCatalog : public Catalog
{
    Q_OBJECT

    /// The default context first.
    Q_PROPERTY(QStringList contexts READ contexts NOTIFY changed)

public:
    explicit IconCatalog(const TarnisUi& tarnisUi);

    QStringList contexts() const;

    /// Sorted.
    Q_INVOKABLE QStringList aliases(const QString& search) const;

    /// The context whose icon is shown when `context` is requested; empty if there is none.
    Q_INVOKABLE QString effectiveContext(const QString& alias, const QString& context) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    TarnisIconHandler::IconMap iconMap;
    QStringList contextNames;
};

} // namespace Gallery
