#pragma once

#include "Common/IniTools/IniFileManager.h"
#include "ResourceFormat/RegularFile.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QSet>

namespace Tests
{

/// The lookups that a front end can make: pairs of group and key, or of alias and context.
struct ResourceLookups {
    using Names = QSet<QPair<QString, QString>>;

    /// Those that succeed with these files.
    ResourceLookups(const QString& colorFile, const QString& fontFile, const QString& mappingTable)
        : colors(entriesOf(colorFile))
    {
        for (const auto& [group, key] : entriesOf(fontFile)) {
            fontGroups.insert({group, QString()});
            if (key != TarnisFontHandler::familyKey)
                fontSizes.insert({group, key});
        }
        const QJsonObject aliases = QJsonDocument::fromJson(mappingTable.toUtf8()).object();
        for (const QString& alias : aliases.keys()) {
            icons.insert({alias, TarnisIconHandler::defaultContextPathKey});
            for (const QString& context : aliases[alias].toObject().keys())
                icons.insert({alias, context});
        }
    }

    /// Of a resource directory.
    static ResourceLookups in(const QString& directory)
    {
        QString problem;
        const QByteArray table = ResourceFormat::RegularFile::readAll(directory + "/icons/mapping.json", problem);
        return {directory + "/colors.ini", directory + "/fonts.ini", QString::fromUtf8(table)};
    }

    void add(const ResourceLookups& other)
    {
        colors += other.colors;
        fontGroups += other.fontGroups;
        fontSizes += other.fontSizes;
        icons += other.icons;
    }

    /// A front end with one lookup in each line.
    QByteArray qml() const
    {
        QStringList calls;
        for (const auto& [group, key] : colors)
            calls += QString("Ui.colors.getColor('%1', '%2')").arg(group, key);
        for (const auto& [group, key] : fontGroups)
            calls += QString("Ui.fonts.getFontFamily('%1')").arg(group);
        for (const auto& [group, key] : fontSizes)
            calls += QString("Ui.fonts.getFontPointSize('%1', '%2')").arg(group, key);
        for (const auto& [alias, context] : icons)
            calls += QString("Ui.icons.getIconPath('%1', '%2')").arg(alias, context);
        const QString code =
            "import QtQuick 2.15\nimport Tarnis 1.0\nItem {\n    property var results: [\n%1\n    ]\n}\n";
        return code.arg(calls.join(",\n")).toUtf8();
    }

    Names colors;
    Names fontGroups; // with an empty key
    Names fontSizes;
    Names icons;

private:
    static Names entriesOf(const QString& file)
    {
        Names names;
        const IniFileManager entries(file, nullptr);
        for (const QString& group : entries.getGroups()) {
            for (const QString& key : entries.getChildKeys(group))
                names.insert({group, key});
        }
        return names;
    }
};

} // namespace Tests
