#pragma once

#include "Common/DBusTools/DBusConnectorBase.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>

/// Asks the Tarnis module, over the system bus, where the colours, fonts and element dimensions of the device lie.
///
/// The owner deletes it; it has no parent. Every getter makes one D-Bus call and blocks for 5 s at the most; nothing
/// is kept between calls. A call that fails is logged as two warnings by DBusConnectorBase::syncCallHelper() and one
/// of the getter.
class TARNISLIBRARY_EXPORT TarnisDeviceUiResourcesDBusConnector : public DBusConnectorBase
{
public:
    TarnisDeviceUiResourcesDBusConnector();

    /// The path of the font INI file. On failure, or if the service answers with something that is no text, a warning
    /// and a null string.
    QString getFontIniFilePath() const;

    /// The path of the colour INI file; fails like getFontIniFilePath().
    QString getColorIniFilePath() const;

    /// Each supported display size in pixels with the path of its dimension INI file, unchanged and in the order of
    /// the service. On failure, or if the answer is no `a((ii)s)`, a warning and an empty list.
    QList<QPair<QSize, QString>> getSupportedDisplaySizes() const;

    /// The text that the reply holds; numbers (but single bytes), booleans and byte arrays count as text. Otherwise a
    /// warning that names `iniFile` ("fonts ini file"), and a null string.
    QString convertDBusReplyToString(const DBusReply& reply, const char* iniFile) const;
};
