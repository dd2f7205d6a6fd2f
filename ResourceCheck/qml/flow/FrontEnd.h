#pragma once

#include "ResourceCheck/qml/QmlFault.h"
#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <map>

namespace ResourceCheck
{

/// All QML and JavaScript files of a front end, and which of them a name refers to.
class FrontEnd
{
public:
    /// Reads all files below the directory.
    void readDirectory(const QString& directory);

    /// What a type name refers to: a component of the front end, or nothing if `unit` is null.
    struct Type {
        const CodeUnit* unit = nullptr;
        bool isSingleton = false;
    };

    /// Resolves a type name as the file sees it, for example `Tile` or `Device.Tile`.
    Type type(const CodeFile& file, const QStringList& name) const;

    /// The file that a path in another file refers to; null if it is not part of the front end.
    const CodeFile* file(const CodeFile& from, const QString& path) const;

    /// The import with the qualifier; null if the file has none.
    static const CodeImport* import(const CodeFile& file, const QString& qualifier);

    const std::map<QString, CodeFile>& files() const { return fileMap; } // by path
    const QVector<QmlFault>& faults() const { return faultList; }

    CodeTables tables;

private:
    void readFile(const QString& path);
    void readModule(const QString& path);
    Type typeInFile(const QString& path, bool isSingleton) const;
    Type typeInDirectory(const QString& directory, const QString& name) const;
    QString directoryOf(const CodeFile& file, const CodeImport& import) const;

    struct ModuleType {
        QString path;
        bool isSingleton;
    };
    std::map<QString, CodeFile> fileMap;
    QHash<QString, QHash<QString, ModuleType>> moduleTypes; // of qmldir files, by directory and name
    QHash<QString, QString> moduleDirectories;              // by the name of the module
    QVector<QmlFault> faultList;
};

} // namespace ResourceCheck
