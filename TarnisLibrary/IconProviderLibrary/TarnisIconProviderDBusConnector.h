#pragma once

#include "Common/DBusTools/DBusConnectorBase.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QString>

/// Asks the Tarnis module over the system bus for the icon directory and the icon mapping table.
///
/// It has no parent; its owner deletes it. Every getter makes one D-Bus call, which blocks for at most 5 s; nothing is
/// cached. For a failed call, DBusConnectorBase::syncCallHelper() logs two warnings and the getter one.
class TARNISLIBRARY_EXPORT TarnisIconProviderDBusConnector : public DBusConnectorBase
{
public:
    TarnisIconProviderDBusConnector();
    ~TarnisIconProviderDBusConnector() override;

    /// The base directory of the icon files; its existence is not checked. If the call fails or the value is not text,
    /// logs a warning and returns a null string.
    QString getIconResourcesBasePath() const;

    /// The JSON text of the icon mapping table with this name; the empty name is the default table. Fails like
    /// getIconResourcesBasePath().
    QString getIconResourcesMappingTable(const QString& name) const;
};
