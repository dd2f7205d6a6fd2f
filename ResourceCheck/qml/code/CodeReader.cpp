#include "ResourceCheck/qml/code/CodeReader.h"

#include "ResourceCheck/qml/code/ComponentCode.h"
#include "ResourceCheck/qml/code/ModuleCode.h"
#include "ResourceCheck/qml/code/ObjectCode.h"

#include <QRegularExpression>

#include <private/qqmljsast_p.h>
#include <private/qqmljsengine_p.h>
#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

using namespace QQmlJS;

namespace ResourceCheck
{

namespace
{

// Collects `.import "file.js" as Name` of scripts.
class ScriptImports : public Directives
{
public:
    explicit ScriptImports(CodeFile& codeFile)
        : file(codeFile)
    {
    }

    void importFile(const QString& path, const QString& qualifier, int /*line*/, int /*column*/) override
    {
        file.imports.append({path, QString(), qualifier});
    }

    void importModule(const QString& uri, const QString& /*version*/, const QString& qualifier, int /*line*/,
                      int /*column*/) override
    {
        file.imports.append({QString(), uri, qualifier});
    }

private:
    CodeFile& file;
};

void readHeaders(AST::UiHeaderItemList* headers, CodeFile& file)
{
    for (AST::UiHeaderItemList* item = headers; item != nullptr; item = item->next) {
        if (const auto* import = AST::cast<AST::UiImport*>(item->headerItem)) {
            const QString module = ComponentCode::names(import->importUri).join(QLatin1Char('.'));
            file.imports.append({import->fileName.toString(), module, import->importId.toString()});
        }
        const auto* pragma = AST::cast<AST::UiPragma*>(item->headerItem);
        if (pragma != nullptr && pragma->name == QLatin1String("Singleton"))
            file.isSingleton = true;
    }
}

void readDeclarations(const QString& code, CodeFile& file)
{
    static const QRegularExpression comment(QStringLiteral("//\\s*tarnis:\\s*names\\s+([^\\n\\r]+)"));
    if (!code.contains(QLatin1String("tarnis:")))
        return;
    int line = 0;
    for (const QString& text : code.split(QLatin1Char('\n'))) {
        ++line;
        const QRegularExpressionMatch match = comment.match(text);
        if (match.hasMatch()) {
            const QStringList patterns = match.captured(1).simplified().split(QLatin1Char(' '));
            file.declarations.append({{line, static_cast<int>(match.capturedStart()) + 1}, patterns});
        }
    }
}

bool parse(Parser& parser, const QString& path)
{
    if (path.endsWith(QLatin1String(".qml")))
        return parser.parse();
    return path.endsWith(QLatin1String(".mjs")) ? parser.parseModule() : parser.parseScript();
}

} // namespace

void CodeReader::read(const QString& code, CodeFile& file, CodeTables& tables, QVector<QmlFault>& faults)
{
    Engine engine;
    ScriptImports imports(file);
    engine.setDirectives(&imports);
    Lexer lexer(&engine);
    lexer.setCode(code, 1, file.path.endsWith(QLatin1String(".qml")));
    Parser parser(&engine);
    readDeclarations(code, file);
    if (!parse(parser, file.path)) {
        const Place place{file.path, parser.errorLineNumber(), parser.errorColumnNumber()};
        faults.append({place, QStringLiteral("syntax error: %1; correct the code").arg(parser.errorMessage())});
        return;
    }
    file.unit = std::make_unique<CodeUnit>();
    file.unit->file = &file;
    auto* program = AST::cast<AST::UiProgram*>(parser.rootNode());
    file.unit->kind = program != nullptr ? CodeUnit::Component : CodeUnit::Module;
    CodeBuilder builder(*file.unit, nullptr, file, tables);
    if (program != nullptr) {
        readHeaders(program->headers, file);
        if (auto* root = AST::cast<AST::UiObjectDefinition*>(program->members->member))
            ObjectCode(builder).write(ComponentCode::names(root->qualifiedTypeNameId), root->initializer, -1);
    } else {
        ModuleCode::write(parser.rootNode(), builder);
    }
    if (builder.isTooDeep())
        faults.append({{file.path}, QStringLiteral("the code is nested too deeply to be checked; split it up")});
}

} // namespace ResourceCheck
