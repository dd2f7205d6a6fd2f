#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"

#include "Common/IniTools/IniFileManager.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>
#include <QStringBuilder>

#include <cmath>
#include <iterator>
#include <limits>

namespace
{

// In doubles: the difference of two ints can overflow an int, and its square a 64-bit integer.
double distance(const QSize& left, const QSize& right)
{
    const double dx = static_cast<double>(left.width()) - right.width();
    const double dy = static_cast<double>(left.height()) - right.height();
    return std::sqrt(dx * dx + dy * dy);
}

// 0 if the list is empty.
int nearestIndex(const QList<QPair<QSize, QString>>& displaySizes, const QSize& screenSize)
{
    int nearest = 0;
    double leastDistance = std::numeric_limits<double>::infinity();
    for (int index = 0; index < displaySizes.size(); ++index) {
        const double currentDistance = distance(displaySizes.at(index).first, screenSize);
        if (currentDistance < leastDistance) {
            leastDistance = currentDistance;
            nearest = index;
        }
    }
    return nearest;
}

} // namespace

TarnisElementDimensionHandler::TarnisElementDimensionHandler(const QList<QPair<QSize, QString>>& displaySizes,
                                                             QObject* parent)
    : QObject(parent)
    , supportedDisplaySizes(displaySizes)
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
    return supportedDisplaySizes.value(nearestIndex(supportedDisplaySizes, screenSize));
}

void TarnisElementDimensionHandler::loadUiElementDimensions(const QPair<QSize, QString>& displaySize)
{
    const IniFileManager dimensionFile(displaySize.second, nullptr);
    dimensions = QVariantMap();
    // The keys of a group are usually sorted, so each one is inserted after the one before.
    QVariantMap::const_iterator position = dimensions.constEnd();
    const QList<QString> groups = dimensionFile.getGroups();
    for (const QString& group : groups) {
        const QList<QString> keys = dimensionFile.getChildKeys(group);
        for (const QString& key : keys) {
            const int value = dimensionFile.getValueInteger(group, key, 0);
            position = std::next(dimensions.insert(position, group % QLatin1Char('/') % key, value));
        }
    }
    Q_EMIT uiElementDimensionsChanged();
}

void TarnisElementDimensionHandler::onScreenGeometryChanged(const QRect& geometry)
{
    if (supportedDisplaySizes.isEmpty())
        return;
    // A reference, since most events keep the entry.
    const auto& nearest = supportedDisplaySizes.at(nearestIndex(supportedDisplaySizes, geometry.size()));
    if (nearest == currentDisplaySize)
        return;
    currentDisplaySize = nearest;
    loadUiElementDimensions(currentDisplaySize);
}
