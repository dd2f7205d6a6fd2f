#pragma once

#include "Common/DBusTools/DBusConnectorBase.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>

/// Asks the Tarnis module over the system bus where the colors, fonts and element dimensions of the device are.
///
/// It has no parent; its owner deletes it. Every getter makes one D-Bus call, which blocks for at most 5 s; nothing is
/// cached. For a failed call, DBusConnectorBase::syncCallHelper() logs two warnings and the getter one.
class TARNISLIBRARY_EXPORT TarnisDeviceUiResourcesDBusConnector : public DBusConnectorBase
{
public:
    TarnisDeviceUiResourcesDBusConnector();

    /// The path of the font INI file. If the call fails or the value is not text, logs a warning and returns a null
    /// string.
    QString getFontIniFilePath() const;

    /// The path of the color INI file; fails like getFontIniFilePath().
    QString getColorIniFilePath() const;

    /// Each supported display size in pixels with the path of its dimension INI file, in the order of the service. If
    /// the call fails or the value is not an `a((ii)s)`, logs a warning and returns an empty list.
    QList<QPair<QSize, QString>> getSupportedDisplaySizes() const;

    /// The reply's text. Numbers (except single bytes), booleans and byte arrays count as text. For anything else, logs
    /// a warning that names `iniFile` ("fonts ini file") and returns a null string.
    QString convertDBusReplyToString(const DBusReply& reply, const char* iniFile) const;
};
