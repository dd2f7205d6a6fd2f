#pragma once

#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariantMap>

/// Publishes the pixel dimensions of UI elements for the supported display size nearest to the primary screen, and
/// follows the changes of that screen's geometry.
class TARNISLIBRARY_EXPORT TarnisElementDimensionHandler : public QObject
{
    Q_OBJECT

    /// Pixels by `group/key`, as `int`. Empty while nothing could be loaded.
    Q_PROPERTY(QVariantMap uiElementDimensions READ uiElementDimensions NOTIFY uiElementDimensionsChanged)

public:
    /// Loads the dimensions of the entry nearest to the primary screen. Without a screen, logs the critical record
    /// `Unable to get primary screen!` and stays empty for good; with an empty list it stays empty without a word.
    explicit TarnisElementDimensionHandler(const QList<QPair<QSize, QString>>& supportedDisplaySizes,
                                           QObject* parent = nullptr);

    /// Valid until the next load.
    const QVariantMap& uiElementDimensions() const;

    /// The entry whose size, in pixels, has the least Euclidean distance to the screen size; of several, the first in
    /// the list. An invalid size with a null path when there is no entry.
    QPair<QSize, QString> nearestNeighbourScreenSize(const QSize& screenSize) const;

    /// Replaces the dimensions by those of the entry's INI file and emits uiElementDimensionsChanged(). A file that
    /// is missing or faulty is logged by the reader; a value that is no integer counts as 0.
    void loadUiElementDimensions(const QPair<QSize, QString>& displaySize);

    /// Loads the entry nearest to the screen's new geometry, unless it is the one loaded last.
    void onScreenGeometryChanged(const QRect& geometry);

Q_SIGNALS:
    /// The dimensions have been loaded anew.
    void uiElementDimensionsChanged();

private:
    QVariantMap dimensions;
    QList<QPair<QSize, QString>> supportedDisplaySizes;
    QPair<QSize, QString> currentDisplaySize;
};
