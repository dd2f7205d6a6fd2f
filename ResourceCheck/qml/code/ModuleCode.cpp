#include "ResourceCheck/qml/code/ModuleCode.h"

#include "ResourceCheck/qml/code/CodeDeclarations.h"
#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/FunctionCode.h"
#include "ResourceCheck/qml/code/StatementCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

CodeSlot writeImport(const QString& module, const QString& name, CodeBuilder& builder)
{
    const CodeSlot path = builder.compute(CodeAction::Text, {}, {}, builder.tables.texts.add(module, {}));
    return builder.compute(CodeAction::Import, path, {}, builder.number(name));
}

void writeImports(const ImportDeclaration* declaration, CodeBuilder& builder)
{
    if (declaration->importClause == nullptr || declaration->fromClause == nullptr)
        return;
    const QString module = declaration->fromClause->moduleSpecifier.toString();
    const auto import = [&](const QString& name, const QString& variable) {
        builder.copy(writeImport(module, name, builder), builder.declare(variable));
    };
    const ImportClause* clause = declaration->importClause;
    if (!clause->importedDefaultBinding.isEmpty())
        import(QStringLiteral("default"), clause->importedDefaultBinding.toString());
    if (clause->nameSpaceImport != nullptr)
        import(QStringLiteral("*"), clause->nameSpaceImport->importedBinding.toString());
    ImportsList* list = clause->namedImports == nullptr ? nullptr : clause->namedImports->importsList;
    for (ImportsList* item = list; item != nullptr; item = item->next) {
        const ImportSpecifier* specifier = item->importSpecifier;
        const QString binding = specifier->importedBinding.toString();
        import(specifier->identifier.isEmpty() ? binding : specifier->identifier.toString(), binding);
    }
}

void exportVariable(const QString& variable, const QString& name, CodeBuilder& builder)
{
    builder.unit.names.insert(builder.number(name), builder.variable(variable).index);
}

void exportDeclared(Node* declaration, CodeBuilder& builder)
{
    if (const auto* variables = cast<VariableStatement*>(declaration)) {
        for (VariableDeclarationList* item = variables->declarations; item != nullptr; item = item->next) {
            const QString name = item->declaration->bindingIdentifier.toString();
            if (!name.isEmpty())
                exportVariable(name, name, builder);
        }
    } else if (const auto* function = cast<FunctionDeclaration*>(declaration)) {
        exportVariable(function->name.toString(), function->name.toString(), builder);
    } else if (const auto* definition = cast<ClassDeclaration*>(declaration)) {
        exportVariable(definition->name.toString(), definition->name.toString(), builder);
    }
}

// `export default` of an expression, a function or a class.
void writeDefault(Node* value, CodeBuilder& builder)
{
    CodeSlot slot;
    if (const auto* statement = cast<ExpressionStatement*>(value))
        slot = ExpressionCode::write(statement->expression, builder);
    else if (auto* function = cast<FunctionDeclaration*>(value))
        slot = FunctionCode::write(function, builder);
    else if (auto* definition = cast<ClassDeclaration*>(value))
        slot = FunctionCode::writeClass(definition, builder);
    else if (auto* expression = value->expressionCast())
        slot = ExpressionCode::write(expression, builder);
    if (slot.isValid())
        builder.unit.names.insert(builder.number(QStringLiteral("default")), slot.index);
}

void writeExport(const ExportDeclaration* declaration, CodeBuilder& builder)
{
    const QString module =
        declaration->fromClause == nullptr ? QString() : declaration->fromClause->moduleSpecifier.toString();
    if (declaration->fromClause != nullptr && declaration->exportClause == nullptr)
        builder.unit.reexported.append(module);
    if (Node* value = declaration->variableStatementOrDeclaration) {
        if (declaration->exportDefault) {
            writeDefault(value, builder);
        } else {
            StatementCode::write(value, builder);
            exportDeclared(value, builder);
        }
    }
    ExportsList* list = declaration->exportClause == nullptr ? nullptr : declaration->exportClause->exportsList;
    for (ExportsList* item = list; item != nullptr; item = item->next) {
        const QString name = item->exportSpecifier->identifier.toString();
        const QString exported = item->exportSpecifier->exportedIdentifier.toString();
        const QString exportedName = exported.isEmpty() ? name : exported;
        if (module.isEmpty())
            exportVariable(name, exportedName, builder);
        else
            builder.unit.names.insert(builder.number(exportedName), writeImport(module, name, builder).index);
    }
}

} // namespace

void ModuleCode::write(Node* root, CodeBuilder& builder)
{
    if (const auto* program = cast<Program*>(root)) {
        StatementCode::writeList(program->statements, builder);
        builder.exportVariables();
        return;
    }
    const auto* module = cast<ESModule*>(root);
    StatementList* body = module == nullptr ? nullptr : module->body;
    for (StatementList* item = body; item != nullptr; item = item->next) {
        if (const auto* declaration = cast<ImportDeclaration*>(item->statement))
            writeImports(declaration, builder);
    }
    CodeDeclarations::declare(body, builder);
    for (StatementList* item = body; item != nullptr; item = item->next) {
        if (const auto* declaration = cast<ExportDeclaration*>(item->statement))
            writeExport(declaration, builder);
        else if (item->statement->kind != Node::Kind_ImportDeclaration)
            StatementCode::write(item->statement, builder);
    }
}

} // namespace ResourceCheck
