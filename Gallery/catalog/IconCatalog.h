#pragma once

#include "Gallery/catalog/Catalog.h"
#include "Gallery/catalog/IconFile.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QHash>
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

    /// Sorted. The text is searched for in the aliases and in the names of their files.
    Q_INVOKABLE QStringList aliases(const QString& search) const;

    /// The context whose icon is shown when `context` is requested; empty if there is none.
    Q_INVOKABLE QString effectiveContext(const QString& alias, const QString& context) const;

    /// The file that is shown when `context` is requested. It is read once, at the first call.
    Q_INVOKABLE Gallery::IconFile file(const QString& alias, const QString& context) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    TarnisIconHandler::IconMap iconMap;
    QStringList contextNames;
    QString iconFolder;
    mutable QHash<QString, IconFile> files; // by name; those that were asked for
};

} // namespace Gallery
