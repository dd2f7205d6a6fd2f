#pragma once

#include "ResourceCheck/qml/code/CodeUnit.h"

namespace ResourceCheck
{

/// `import "directory" as Qualifier`, `import Module 1.0` or `import "file.js" as Qualifier`.
struct CodeImport {
    QString path;   // as written; empty for a module
    QString module; // the name of the module
    QString qualifier;
};

/// Names that the comment `// tarnis: names PATTERN...` declares.
struct CodeDeclaration {
    CodePosition position;
    QStringList patterns;
};

/// A QML or JavaScript file in the form that the analysis works on.
struct CodeFile {
    QString path;
    QVector<CodeImport> imports;
    QVector<CodeDeclaration> declarations;
    std::unique_ptr<CodeUnit> unit; // null if the file has syntax errors
    QHash<QString, CodeUnit*> inlineComponents;
    bool isSingleton = false;
};

} // namespace ResourceCheck
