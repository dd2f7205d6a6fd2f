#include "ResourceCheck/qml/code/CodeDeclarations.h"

#include "ResourceCheck/qml/code/PatternCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

// Finds each `var` of a function, also in its blocks.
class VariableFinder : public Visitor
{
public:
    explicit VariableFinder(CodeBuilder& codeBuilder)
        : builder(codeBuilder)
    {
    }

private:
    using Visitor::visit;
    bool visit(FunctionExpression* /*function*/) override { return false; }
    bool visit(FunctionDeclaration* /*function*/) override { return false; }
    bool visit(VariableDeclarationList* list) override
    {
        for (VariableDeclarationList* item = list; item != nullptr; item = item->next) {
            PatternElement* variable = item->declaration;
            const bool isOuter = variable->scope == VariableScope::Var && !variable->bindingIdentifier.isEmpty()
                && builder.variable(variable->bindingIdentifier.toString()).level == 0
                && builder.variable(variable->bindingIdentifier.toString()).isValid();
            if (variable->scope == VariableScope::Var && !isOuter)
                PatternCode::declare(variable, builder);
        }
        return true;
    }
    void throwRecursionDepthError() override { } // the translation reports code that is too deep

    CodeBuilder& builder;
};

void declareStatement(Node* statement, CodeBuilder& builder)
{
    if (const auto* variables = cast<VariableStatement*>(statement)) {
        for (VariableDeclarationList* item = variables->declarations; item != nullptr; item = item->next) {
            if (item->declaration->scope != VariableScope::Var)
                PatternCode::declare(item->declaration, builder);
        }
    } else if (const auto* function = cast<FunctionDeclaration*>(statement)) {
        builder.declare(function->name.toString());
    } else if (const auto* definition = cast<ClassDeclaration*>(statement)) {
        builder.declare(definition->name.toString());
    } else if (const auto* exported = cast<ExportDeclaration*>(statement)) {
        declareStatement(exported->variableStatementOrDeclaration, builder);
    }
}

} // namespace

void CodeDeclarations::declare(StatementList* list, CodeBuilder& builder)
{
    VariableFinder finder(builder);
    for (StatementList* item = list; item != nullptr; item = item->next) {
        declareStatement(item->statement, builder);
        Node::accept(item->statement, &finder);
    }
}

void CodeDeclarations::declareCases(CaseBlock* block, CodeBuilder& builder)
{
    for (CaseClauses* clauses : {block->clauses, block->moreClauses}) {
        for (CaseClauses* item = clauses; item != nullptr; item = item->next)
            declare(item->clause->statements, builder);
    }
    if (block->defaultClause != nullptr)
        declare(block->defaultClause->statements, builder);
}

} // namespace ResourceCheck
