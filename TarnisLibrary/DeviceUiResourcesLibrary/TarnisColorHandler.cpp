#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"

#include <QDebug>

TarnisColorHandler::TarnisColorHandler(const QString& colorIniFilePath, QObject* parent)
    : QObject(parent)
    , colorFile(colorIniFilePath, nullptr)
{
}

QString TarnisColorHandler::getColor(const QString& group, const QString& key) const
{
    if (colorFile.contains(group, key))
        return colorFile.getValueString(group, key, QString());
    qWarning() << "No color for key" << key << "in group" << group << "!";
    return QLatin1String("");
}
