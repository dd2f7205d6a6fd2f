#pragma once

#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QJsonDocument>

namespace Tests
{

/// The mapping table that these icons are read from.
inline QString writeMappingTable(const TarnisIconHandler::IconMap& icons)
{
    QJsonObject table;
    for (auto icon = icons.begin(); icon != icons.end(); ++icon) {
        QJsonObject contexts;
        for (auto context = icon->begin(); context != icon->end(); ++context)
            contexts.insert(context.key(), *context);
        table.insert(icon.key(), contexts);
    }
    return QString::fromUtf8(QJsonDocument(table).toJson(QJsonDocument::Compact));
}

} // namespace Tests
