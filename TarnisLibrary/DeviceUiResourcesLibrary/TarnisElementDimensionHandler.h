#pragma once

#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariantMap>

/// Publishes the pixel dimensions of UI elements for the supported display size that is nearest to the primary screen.
/// It follows the geometry of the screen that was the primary one when it was constructed.
class TARNISLIBRARY_EXPORT TarnisElementDimensionHandler : public QObject
{
    Q_OBJECT

    /// Pixels by `group/key`, as `int`. Empty until a file has been loaded.
    Q_PROPERTY(QVariantMap uiElementDimensions READ uiElementDimensions NOTIFY uiElementDimensionsChanged)

public:
    /// Loads the dimensions of the entry that is nearest to the primary screen. Without a screen, logs the critical
    /// record `Unable to get primary screen!` and stays empty. With an empty list it stays empty and logs nothing.
    explicit TarnisElementDimensionHandler(const QList<QPair<QSize, QString>>& displaySizes, QObject* parent = nullptr);

    /// Valid until the next load.
    const QVariantMap& uiElementDimensions() const;

    /// The entry whose size, in pixels, has the smallest Euclidean distance to the screen size; the first one if
    /// several are equally near. An invalid size with a null path if there is no entry.
    QPair<QSize, QString> nearestNeighbourScreenSize(const QSize& screenSize) const;

    /// Replaces the dimensions with those of the entry's INI file and emits uiElementDimensionsChanged(). The reader
    /// logs a missing or faulty file. A value that is not an integer counts as 0.
    void loadUiElementDimensions(const QPair<QSize, QString>& displaySize);

    /// Loads the entry that is nearest to the screen's new geometry, unless it was the last one loaded.
    void onScreenGeometryChanged(const QRect& geometry);

Q_SIGNALS:
    /// The dimensions have been loaded.
    void uiElementDimensionsChanged();

private:
    QVariantMap dimensions;
    QList<QPair<QSize, QString>> supportedDisplaySizes;
    QPair<QSize, QString> currentDisplaySize;
};
