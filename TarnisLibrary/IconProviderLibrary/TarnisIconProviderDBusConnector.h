#pragma once

#include "Common/DBusTools/DBusConnectorBase.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QString>

/// Asks the Tarnis module, over the system bus, for the two things that icon paths are made of.
///
/// The owner deletes it; it has no parent. Every getter makes one D-Bus call and blocks for 5 s at the most; nothing
/// is kept between calls. A call that fails is logged as two warnings by DBusConnectorBase::syncCallHelper() and one
/// of the getter.
class TARNISLIBRARY_EXPORT TarnisIconProviderDBusConnector : public DBusConnectorBase
{
public:
    TarnisIconProviderDBusConnector();
    ~TarnisIconProviderDBusConnector() override;

    /// The base directory of the icon files, untested. On failure, or if the service answers with something that is
    /// no text, a warning and a null string.
    QString getIconResourcesBasePath() const;

    /// The JSON text of the icon mapping table with this name, unparsed; the empty name is the default table. Fails
    /// like getIconResourcesBasePath().
    QString getIconResourcesMappingTable(const QString& name) const;
};
