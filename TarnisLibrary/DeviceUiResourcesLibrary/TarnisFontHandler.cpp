#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>

namespace
{

constexpr double pointsPerInch = 72.0;
constexpr double defaultDotsPerInch = 96.0;

} // namespace

TarnisFontHandler::TarnisFontHandler(const QString& fontIniFilePath, QObject* parent)
    : QObject(parent)
    , fontFile(fontIniFilePath, nullptr)
    , logicalDotsPerInch(defaultDotsPerInch)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        qWarning() << "Cannot read pointer to primary screen!";
        return;
    }
    const double dotsPerInch = screen->logicalDotsPerInch();
    if (dotsPerInch != 0.0)
        logicalDotsPerInch = dotsPerInch;
}

QString TarnisFontHandler::getFontFamily(const QString& fontGroup) const
{
    if (fontFile.contains(fontGroup, familyKey))
        return fontFile.getValueString(fontGroup, familyKey, QString());
    qWarning() << "Unknown font group:" << fontGroup;
    return QLatin1String("");
}

double TarnisFontHandler::getFontPointSize(const QString& fontGroup, const QString& sizeKey) const
{
    if (!fontFile.contains(fontGroup, sizeKey)) {
        qWarning() << "No font size for key" << sizeKey << "in font group" << fontGroup;
        return 0.0;
    }
    bool isNumber = false;
    const double size = fontFile.getValue(fontGroup, sizeKey, QVariant()).toDouble(&isNumber);
    if (isNumber)
        return scaleFontSize(size);
    qWarning() << "Expected font size for key" << sizeKey << "in font group" << fontGroup << "to be a number!";
    return size;
}

double TarnisFontHandler::scaleFontSize(double size) const
{
    return pointsPerInch / logicalDotsPerInch * size;
}
