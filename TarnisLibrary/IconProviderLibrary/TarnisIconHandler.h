#pragma once

#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QDir>
#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>

/// Finds icon files for QML: it maps an alias and a context to the path of an existing file.
///
/// The mapping table is read once, in the constructor. The existence of the file is checked on every lookup.
class TARNISLIBRARY_EXPORT TarnisIconHandler : public QObject
{
    Q_OBJECT

public:
    /// Context name to path of the icon file, relative to the base directory.
    using ContextMap = QMap<QString, QString>;
    /// Alias name to the alias's contexts.
    using IconMap = QMap<QString, ContextMap>;

    /// The context that is used instead of one that the alias does not list: `defaultContext`.
    static const QString defaultContextPathKey;

    /// `mappingTable` is JSON text: `{"alias": {"context": "relative/path"}}`. For its faults see parseMappingTable().
    /// If the base directory does not exist, logs `Unable to create object icon base path directory does not exist`;
    /// paths then start at the current working directory, as they do for an empty base path.
    TarnisIconHandler(const QString& iconBasePath, const QString& mappingTable, QObject* parent = nullptr);

    /// The absolute path of the alias's icon file in the context, or in the default context if the alias does not list
    /// the context. Empty for an empty alias. Empty, with one warning, if the alias is unknown
    /// (`Unknown alias name ( "A" )`), lists neither context (`Unknown context ( "defaultContext" )`), or the file is
    /// missing (`Icon file "P" does not exist`).
    Q_INVOKABLE QString getIconPath(const QString& aliasName, const QString& context = defaultContextPathKey) const;

    /// "file:" followed by the result of getIconPath(), not percent-encoded; empty if that is empty.
    Q_INVOKABLE QString getIconPathAsFileUrl(const QString& aliasName,
                                             const QString& context = defaultContextPathKey) const;

    /// The entry that answers for the context: its own, or that of the default context if the alias does not list it,
    /// or the end if the alias lists neither. Inline, so that it is not part of the binary interface.
    static ContextMap::const_iterator findContext(const ContextMap& contexts, const QString& context)
    {
        const auto entry = contexts.constFind(context);
        return entry != contexts.constEnd() ? entry : contexts.constFind(defaultContextPathKey);
    }

    /// Reads the whole table. Text that is not a JSON object logs `Failed to parse icon mapping json! Invalid json.`
    /// and returns an empty map.
    IconMap parseMappingTable(const QString& mappingTable) const;

    /// Reads the contexts of one alias. A value that is not an object logs
    /// `Failed to parse icon mapping json! Ivalid json.` and returns an empty map.
    ContextMap extractContextBaseMapping(const QJsonValueRef& contexts) const;

    /// Context name and relative path of one member. A value that is not a string logs
    /// `Failed to parse icon mapping json! Expected relative path to be of type string.` and returns two empty strings.
    QPair<QString, QString> extractOneContext(const QJsonObject::const_iterator& context) const;

private:
    QDir iconBaseDirectory;
    IconMap iconMap;
};
