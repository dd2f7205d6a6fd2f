#include "ResourceCheck/qml/QmlUses.h"

#include "ResourceCheck/qml/QmlCollector.h"
#include "ResourceCheck/qml/QmlExpression.h"
#include "ResourceCheck/qml/QmlScope.h"
#include "ResourceFormat/RegularFile.h"

#include <QDirIterator>

#include <private/qqmljsengine_p.h>
#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

namespace ResourceCheck
{

namespace
{

const QHash<QString, ResourceKind>& kindsByMeaning()
{
    static const QHash<QString, ResourceKind> kinds{
        {QStringLiteral("TarnisColorHandler.getColor"), ResourceKind::Color},
        {QStringLiteral("TarnisFontHandler.getFontFamily"), ResourceKind::FontGroup},
        {QStringLiteral("TarnisFontHandler.getFontPointSize"), ResourceKind::FontSize},
        {QStringLiteral("TarnisElementDimensionHandler.uiElementDimensions"), ResourceKind::Dimension},
        {QStringLiteral("TarnisIconHandler.getIconPath"), ResourceKind::Icon},
        {QStringLiteral("TarnisIconHandler.getIconPathAsFileUrl"), ResourceKind::Icon},
        {QStringLiteral("TarnisTextHandler.translatedTexts"), ResourceKind::Text},
    };
    return kinds;
}

} // namespace

QHash<QString, QString> QmlUses::defaultHandlers()
{
    return {
        {QStringLiteral("Ui.colors"), QStringLiteral("TarnisColorHandler")},
        {QStringLiteral("Ui.fonts"), QStringLiteral("TarnisFontHandler")},
        {QStringLiteral("Ui.dimensions"), QStringLiteral("TarnisElementDimensionHandler")},
        {QStringLiteral("Ui.texts"), QStringLiteral("TarnisTextHandler")},
        {QStringLiteral("Ui.icons"), QStringLiteral("TarnisIconHandler")},
    };
}

QmlUses::QmlUses(const QStringList& directories, const QHash<QString, QString>& handlers)
{
    for (const QString& directory : directories)
        readDirectory(directory, handlers);
}

void QmlUses::readDirectory(const QString& directory, const QHash<QString, QString>& handlers)
{
    QStringList files;
    QDirIterator iterator(directory, {QStringLiteral("*.qml"), QStringLiteral("*.js")}, QDir::Files | QDir::System,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(iterator.next());
    files.sort();
    if (files.isEmpty())
        faultList.append(
            {{directory}, QStringLiteral("the directory contains no QML files; correct the --qml option")});
    for (const QString& file : files)
        readFile(file, handlers);
}

void QmlUses::readFile(const QString& path, const QHash<QString, QString>& handlers)
{
    QString problem;
    const QString code = QString::fromUtf8(ResourceFormat::RegularFile::readAll(path, problem));
    if (problem.isNull())
        parse(code, path, handlers);
    else
        faultList.append({{path}, QStringLiteral("the file cannot be read: %1; make it readable").arg(problem)});
}

void QmlUses::parse(const QString& code, const QString& path, const QHash<QString, QString>& handlers)
{
    QQmlJS::Engine engine;
    QQmlJS::Lexer lexer(&engine);
    const bool isQml = path.endsWith(QLatin1String(".qml"));
    lexer.setCode(code, 1, isQml);
    QQmlJS::Parser parser(&engine);
    if (!(isQml ? parser.parse() : parser.parseScript())) {
        const Place place{path, parser.errorLineNumber(), parser.errorColumnNumber()};
        faultList.append({place, QStringLiteral("syntax error: %1; correct the code").arg(parser.errorMessage())});
        return;
    }
    QmlCollector collector;
    QQmlJS::AST::Node::accept(parser.rootNode(), &collector);
    if (collector.isTooDeep())
        faultList.append({{path}, QStringLiteral("the code is nested too deeply to be checked; split it up")});
    literalSet.unite(collector.literals());
    QmlScope scope(handlers, collector.bindings());
    for (const QmlCollector::Lookup& lookup : collector.lookups()) {
        QVector<QVector<QmlPattern>> arguments;
        for (QQmlJS::AST::ExpressionNode* argument : lookup.arguments)
            arguments.append(QmlExpression::texts(argument, path));
        addUse(scope.meaning(lookup.path), arguments);
    }
}

void QmlUses::addUse(const QString& meaning, const QVector<QVector<QmlPattern>>& arguments)
{
    const auto kind = kindsByMeaning().constFind(meaning);
    if (kind == kindsByMeaning().constEnd() || arguments.isEmpty())
        return;
    const QVector<QmlPattern>& first = arguments.first();
    const QVector<QmlPattern> second = arguments.value(1, {QmlPattern::anything()});
    const QVector<QmlPattern> noGroup{QmlPattern::anything()};
    if (hasGroupArgument(*kind))
        useList.append({*kind, first, second});
    else
        useList.append({*kind, noGroup, first});
    if (*kind == ResourceKind::Icon)
        useList.append({ResourceKind::IconContext, noGroup, second});
}

} // namespace ResourceCheck
