#pragma once

#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QDir>
#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>

/// Finds icon files for QML: an alias and a context to the path of an existing file.
///
/// The mapping table is read once, in the constructor; the file itself is tested on every lookup.
class TARNISLIBRARY_EXPORT TarnisIconHandler : public QObject
{
    Q_OBJECT

public:
    /// Context name to path of the icon file, relative to the base directory.
    using ContextMap = QMap<QString, QString>;
    /// Alias name to the alias's contexts.
    using IconMap = QMap<QString, ContextMap>;

    /// The context that stands in for one that the alias does not list: `defaultContext`.
    static const QString defaultContextPathKey;

    /// `mappingTable` is a JSON text: `{"alias": {"context": "relative/path"}}`; see parseMappingTable() for its
    /// faults. If the base directory does not exist, logs
    /// `Unable to create object icon base path directory does not exist`; paths then start at the current working
    /// directory, as they do for an empty base path.
    TarnisIconHandler(const QString& iconBasePath, const QString& mappingTable, QObject* parent = nullptr);

    /// The absolute path of the icon file of the alias in the context, or in the default context where the alias does
    /// not list it.
    /// Empty for an empty alias; empty, with one warning, when the alias is unknown (`Unknown alias name ( "A" )`),
    /// has neither context (`Unknown context ( "defaultContext" )`), or the file is missing
    /// (`Icon file "P" does not exist`).
    Q_INVOKABLE QString getIconPath(const QString& aliasName, const QString& context = defaultContextPathKey) const;

    /// "file:" and what getIconPath() returns, not percent-encoded; empty when that is empty.
    Q_INVOKABLE QString getIconPathAsFileUrl(const QString& aliasName,
                                             const QString& context = defaultContextPathKey) const;

    /// Reads the whole table. A text that is no JSON object logs `Failed to parse icon mapping json! Invalid json.`
    /// and gives an empty map.
    IconMap parseMappingTable(const QString& mappingTable) const;

    /// Reads the contexts of one alias. A value that is no object logs
    /// `Failed to parse icon mapping json! Ivalid json.` and gives an empty map.
    ContextMap extractContextBaseMapping(const QJsonValueRef& contexts) const;

    /// Context name and relative path of one member. A value that is no string logs
    /// `Failed to parse icon mapping json! Expected relative path to be of type string.` and gives two empty strings.
    QPair<QString, QString> extractOneContext(const QJsonObject::const_iterator& context) const;

private:
    QDir iconBaseDirectory;
    IconMap iconMap;
};
