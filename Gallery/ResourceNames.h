#pragma once

#include <QObject>
#include <QVariantList>

class UiResources;

/// The names that the resources hold, so that the gallery can look up every one of them. A device's front end knows
/// its names and needs nothing like it. The QML singleton `Names` of the module `Tarnis`.
class ResourceNames : public QObject
{
    Q_OBJECT

    /// Of maps with `group` and `keys`, in the order of the file.
    Q_PROPERTY(QVariantList colors MEMBER colors NOTIFY changed)
    /// Of maps with `group` and `keys`; the family's key is left out.
    Q_PROPERTY(QVariantList fonts MEMBER fonts NOTIFY changed)
    /// Of maps with `alias` and `contexts`, sorted.
    Q_PROPERTY(QVariantList icons MEMBER icons NOTIFY changed)

public:
    /// Follows the reloads of `resources`, which must outlive it.
    explicit ResourceNames(const UiResources& resources);

    QVariantList colors;
    QVariantList fonts;
    QVariantList icons;

Q_SIGNALS:
    void changed();

private:
    void update();

    const UiResources& resources;
};
