#pragma once

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QDebug>

/// A getter of the connectors: the method that it calls, the function that logs its failure, and what it fetches.
struct Getter {
    QString method;
    QString function;
    QString subject;

    bool givesSizes() const { return method == "getSupportedScreenSizes"; }

    /// The log records after a failed call, after an error in the reply record, or, if both are null, after a value of
    /// the wrong type.
    QStringList recordsOfFailure(const QString& callError, const QString& recordError) const
    {
        QStringList records;
        QString error = recordError;
        if (!callError.isNull()) {
            error = "D-Bus call to method " + method + " failed: " + callError + '!';
            const QString record = "DBusConnectorBase::syncCallHelper: " + quoted(error);
            records << record << record;
        }
        if (!error.isNull())
            return records << function + "Fetching " + subject + " failed with the follwoing error: " + quoted(error);
        return records << function
            + (givesSizes() ? "Unable to extract " + subject + " from dbus reply"
                            : "Expected " + subject + " to be of type string!");
    }

    static QString quoted(const QString& text)
    {
        QString result;
        QDebug(&result).nospace() << text;
        return result;
    }
};

inline const Getter getters[] = {
    {"getFontIniFilePath",
     "TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString: ", "path to fonts ini file"},
    {"getColorIniFilePath",
     "TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString: ", "path to colors ini file"},
    {"getIconResourcesBasePath",
     "TarnisIconProviderDBusConnector::getIconResourcesBasePath: ", "base path to icon resources"},
    {"getIconResourcesMappingTable",
     "TarnisIconProviderDBusConnector::getIconResourcesMappingTable: ", "mapping table"},
    {"getSupportedScreenSizes",
     "TarnisDeviceUiResourcesDBusConnector::getSupportedDisplaySizes: ", "supported display sizes"},
};

/// Both connectors, with their getters by number.
struct Connectors {
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector icons;

    /// The text, null if there is none; of the sizes `WIDTHxHEIGHT PATH;` each, concatenated.
    QString ask(int getter) const
    {
        switch (getter) {
        case 0:
            return resources.getFontIniFilePath();
        case 1:
            return resources.getColorIniFilePath();
        case 2:
            return icons.getIconResourcesBasePath();
        case 3:
            return icons.getIconResourcesMappingTable("");
        }
        QString sizes = "";
        for (const auto& [size, path] : resources.getSupportedDisplaySizes())
            sizes += QString::number(size.width()) + 'x' + QString::number(size.height()) + ' ' + path + ';';
        return sizes;
    }
};
