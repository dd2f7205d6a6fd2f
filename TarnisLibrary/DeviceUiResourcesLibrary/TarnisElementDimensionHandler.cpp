#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"

#include "Common/IniTools/IniFileManager.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <limits>

namespace
{

// In doubles: the difference of two ints can exceed an int, its square a 64-bit integer.
double distance(const QSize& left, const QSize& right)
{
    const double dx = static_cast<double>(left.width()) - right.width();
    const double dy = static_cast<double>(left.height()) - right.height();
    return std::sqrt(dx * dx + dy * dy);
}

} // namespace

TarnisElementDimensionHandler::TarnisElementDimensionHandler(const QList<QPair<QSize, QString>>& supportedDisplaySizes,
                                                             QObject* parent)
    : QObject(parent)
    , supportedDisplaySizes(supportedDisplaySizes)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        qCritical() << "Unable to get primary screen!";
        return;
    }
    connect(screen, &QScreen::geometryChanged, this, &TarnisElementDimensionHandler::onScreenGeometryChanged);
    onScreenGeometryChanged(screen->geometry());
}

const QVariantMap& TarnisElementDimensionHandler::uiElementDimensions() const
{
    return dimensions;
}

QPair<QSize, QString> TarnisElementDimensionHandler::nearestNeighbourScreenSize(const QSize& screenSize) const
{
    int nearest = 0;
    double leastDistance = std::numeric_limits<double>::infinity();
    for (int index = 0; index < supportedDisplaySizes.size(); ++index) {
        const double currentDistance = distance(supportedDisplaySizes.at(index).first, screenSize);
        if (currentDistance < leastDistance) {
            leastDistance = currentDistance;
            nearest = index;
        }
    }
    return supportedDisplaySizes.value(nearest);
}

void TarnisElementDimensionHandler::loadUiElementDimensions(const QPair<QSize, QString>& displaySize)
{
    const IniFileManager dimensionFile(displaySize.second, nullptr);
    dimensions = QVariantMap();
    const QList<QString> groups = dimensionFile.getGroups();
    for (const QString& group : groups) {
        const QList<QString> keys = dimensionFile.getChildKeys(group);
        for (const QString& key : keys)
            dimensions.insert(group + QLatin1Char('/') + key, dimensionFile.getValueInteger(group, key, 0));
    }
    Q_EMIT uiElementDimensionsChanged();
}

void TarnisElementDimensionHandler::onScreenGeometryChanged(const QRect& geometry)
{
    // Without any entry, the nearest is the invalid size with which the current one begins: nothing is loaded.
    const QPair<QSize, QString> nearest = nearestNeighbourScreenSize(geometry.size());
    if (nearest == currentDisplaySize)
        return;
    currentDisplaySize = nearest;
    loadUiElementDimensions(nearest);
}
