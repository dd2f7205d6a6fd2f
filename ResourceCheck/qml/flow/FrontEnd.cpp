#include "ResourceCheck/qml/flow/FrontEnd.h"

#include "ResourceCheck/qml/code/CodeReader.h"
#include "ResourceFormat/RegularFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace ResourceCheck
{

void FrontEnd::readDirectory(const QString& directory)
{
    const QStringList patterns{QStringLiteral("*.qml"), QStringLiteral("*.js"), QStringLiteral("*.mjs"),
                               QStringLiteral("qmldir")};
    QStringList paths;
    QDirIterator iterator(directory, patterns, QDir::Files | QDir::System, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        paths.append(QDir::cleanPath(iterator.next()));
    paths.sort();
    const auto count = fileMap.size();
    for (const QString& path : paths)
        path.endsWith(QLatin1String("/qmldir")) ? readModule(path) : readFile(path);
    if (fileMap.size() == count)
        faultList.append(
            {{directory}, QStringLiteral("the directory contains no QML files; correct the --qml option")});
}

void FrontEnd::readFile(const QString& path)
{
    QString problem;
    const QString code = QString::fromUtf8(ResourceFormat::RegularFile::readAll(path, problem));
    CodeFile& file = fileMap[path];
    file.path = path;
    if (problem.isNull())
        CodeReader::read(code, file, tables, faultList);
    else
        faultList.append({{path}, QStringLiteral("the file cannot be read: %1; make it readable").arg(problem)});
}

// A line of a qmldir file is `module NAME`, `[singleton|internal] TYPE [VERSION] FILE` or something else.
void FrontEnd::readModule(const QString& path)
{
    QString problem;
    const QString content = QString::fromUtf8(ResourceFormat::RegularFile::readAll(path, problem));
    const QString directory = QFileInfo(path).path();
    for (const QString& line : content.split(QLatin1Char('\n'))) {
        QStringList words = line.simplified().split(QLatin1Char(' '));
        if (words.size() < 2 || words.first().startsWith(QLatin1Char('#')))
            continue;
        if (words.first() == QLatin1String("module"))
            moduleDirectories.insert(words.at(1), directory);
        const bool isSingleton = words.first() == QLatin1String("singleton");
        if (isSingleton || words.first() == QLatin1String("internal"))
            words.removeFirst();
        if (words.last().endsWith(QLatin1String(".qml")))
            moduleTypes[directory].insert(words.first(), {directory + QLatin1Char('/') + words.last(), isSingleton});
    }
}

FrontEnd::Type FrontEnd::type(const CodeFile& file, const QStringList& name) const
{
    const auto inlineComponent = file.inlineComponents.constFind(name.first());
    if (inlineComponent != file.inlineComponents.constEnd() && name.size() == 1)
        return {*inlineComponent, false};
    if (name.size() > 1) {
        const CodeImport* qualified = import(file, name.first());
        if (qualified != nullptr)
            return typeInDirectory(directoryOf(file, *qualified), name.at(1));
        const Type outer = type(file, {name.first()});
        if (outer.unit == nullptr || outer.unit->file == &file)
            return {};
        return {outer.unit->file->inlineComponents.value(name.at(1)), false};
    }
    Type found = typeInDirectory(QFileInfo(file.path).path(), name.first());
    for (auto item = file.imports.begin(); item != file.imports.end() && found.unit == nullptr; ++item) {
        if (item->qualifier.isEmpty())
            found = typeInDirectory(directoryOf(file, *item), name.first());
    }
    return found;
}

const CodeFile* FrontEnd::file(const CodeFile& from, const QString& path) const
{
    QString relative = path;
    for (const QString& scheme : {QStringLiteral("qrc:"), QStringLiteral("file:"), QStringLiteral(":")}) {
        if (relative.startsWith(scheme))
            relative.remove(0, scheme.size());
    }
    const auto found = fileMap.find(QDir::cleanPath(QFileInfo(from.path).path() + QLatin1Char('/') + relative));
    if (found != fileMap.end() || relative == path || relative.isEmpty())
        return found != fileMap.end() ? &found->second : nullptr;
    // The path of a resource is that of the file, except for a prefix: the longest common end wins.
    for (QString end = relative; !end.isEmpty(); end = end.section(QLatin1Char('/'), 1)) {
        if (!end.startsWith(QLatin1Char('/')))
            end.prepend(QLatin1Char('/'));
        for (const auto& [known, candidate] : fileMap) {
            if (known.endsWith(end))
                return &candidate;
        }
        end.remove(0, 1);
    }
    return nullptr;
}

const CodeImport* FrontEnd::import(const CodeFile& file, const QString& qualifier)
{
    for (const CodeImport& import : file.imports) {
        if (import.qualifier == qualifier)
            return &import;
    }
    return nullptr;
}

FrontEnd::Type FrontEnd::typeInFile(const QString& path, bool isSingleton) const
{
    const auto found = fileMap.find(path);
    if (found == fileMap.end() || found->second.unit == nullptr || found->second.unit->objects.empty())
        return {};
    return {found->second.unit.get(), isSingleton || found->second.isSingleton};
}

FrontEnd::Type FrontEnd::typeInDirectory(const QString& directory, const QString& name) const
{
    if (directory.isEmpty())
        return {};
    const auto module = moduleTypes.constFind(directory);
    if (module != moduleTypes.constEnd() && module->contains(name))
        return typeInFile(module->value(name).path, module->value(name).isSingleton);
    return typeInFile(directory + QLatin1Char('/') + name + QStringLiteral(".qml"), false);
}

QString FrontEnd::directoryOf(const CodeFile& file, const CodeImport& import) const
{
    if (import.module.isEmpty())
        return QDir::cleanPath(QFileInfo(file.path).path() + QLatin1Char('/') + import.path);
    return moduleDirectories.value(import.module);
}

} // namespace ResourceCheck
