#pragma once

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QDebug>

#include <functional>

namespace Tests
{

/// Both connectors.
struct Connectors {
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector icons;

    /// `WIDTHxHEIGHT PATH;` of each size, concatenated.
    QString sizes() const
    {
        QString text = "";
        for (const auto& [size, path] : resources.getSupportedDisplaySizes())
            text += QString::number(size.width()) + 'x' + QString::number(size.height()) + ' ' + path + ';';
        return text;
    }
};

/// A getter of the connectors: the method that it calls, the function that logs its failure, what it fetches, and a
/// call of it, which returns a null text on failure, except for sizes.
struct Getter {
    QString method;
    QString function;
    QString subject;
    std::function<QString(const Connectors&)> ask;

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
    {"getFontIniFilePath", "TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString: ", "path to fonts ini file",
     [](const Connectors& all) { return all.resources.getFontIniFilePath(); }},
    {"getColorIniFilePath", "TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString: ",
     "path to colors ini file", [](const Connectors& all) { return all.resources.getColorIniFilePath(); }},
    {"getIconResourcesBasePath", "TarnisIconProviderDBusConnector::getIconResourcesBasePath: ",
     "base path to icon resources", [](const Connectors& all) { return all.icons.getIconResourcesBasePath(); }},
    {"getIconResourcesMappingTable", "TarnisIconProviderDBusConnector::getIconResourcesMappingTable: ", "mapping table",
     [](const Connectors& all) { return all.icons.getIconResourcesMappingTable(""); }},
    {"getSupportedScreenSizes", "TarnisDeviceUiResourcesDBusConnector::getSupportedDisplaySizes: ",
     "supported display sizes", [](const Connectors& all) { return all.sizes(); }},
};

} // namespace Tests
