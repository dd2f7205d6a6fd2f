#include "ResourceCheck/qml/code/StatementCode.h"

#include "ResourceCheck/qml/code/CodeDeclarations.h"
#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/FunctionCode.h"
#include "ResourceCheck/qml/code/GuardCode.h"
#include "ResourceCheck/qml/code/PatternCode.h"
#include "ResourceCheck/qml/code/SwitchCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

void writeDeclarations(VariableDeclarationList* list, CodeBuilder& builder)
{
    for (VariableDeclarationList* item = list; item != nullptr; item = item->next)
        PatternCode::bind(item->declaration, {}, builder);
}

void writeIf(const IfStatement* statement, CodeBuilder& builder)
{
    ExpressionCode::write(statement->expression, builder);
    for (const bool isTrue : {true, false}) {
        const GuardCode guard(statement->expression, isTrue, builder);
        StatementCode::write(isTrue ? statement->ok : statement->ko, builder);
    }
}

void writeFor(ForStatement* statement, CodeBuilder& builder)
{
    builder.openBlock();
    for (VariableDeclarationList* item = statement->declarations; item != nullptr; item = item->next)
        PatternCode::declare(item->declaration, builder);
    writeDeclarations(statement->declarations, builder);
    for (ExpressionNode* part : {statement->initialiser, statement->condition, statement->expression}) {
        if (part != nullptr)
            ExpressionCode::write(part, builder);
    }
    StatementCode::write(statement->statement, builder);
    builder.closeBlock();
}

void writeForEach(ForEachStatement* statement, CodeBuilder& builder)
{
    const CodeSlot list = ExpressionCode::write(statement->expression, builder);
    const bool isOverKeys = statement->type == ForEachType::In;
    const CodeSlot item = builder.compute(isOverKeys ? CodeAction::Keys : CodeAction::Element, list);
    builder.openBlock();
    if (PatternElement* declaration = statement->declaration()) {
        PatternCode::declare(declaration, builder);
        PatternCode::bind(declaration, item, builder);
    } else if (auto* target = statement->lhs->expressionCast()) {
        ExpressionCode::assign(target, item, builder);
    }
    StatementCode::write(statement->statement, builder);
    builder.closeBlock();
}

void writeTry(const TryStatement* statement, CodeBuilder& builder)
{
    StatementCode::write(statement->statement, builder);
    if (const Catch* handler = statement->catchExpression) {
        builder.openBlock();
        if (handler->patternElement != nullptr) {
            PatternCode::declare(handler->patternElement, builder);
            PatternCode::bind(handler->patternElement, builder.unknown(), builder);
        }
        StatementCode::write(handler->statement, builder);
        builder.closeBlock();
    }
    if (statement->finallyExpression != nullptr)
        StatementCode::write(statement->finallyExpression->statement, builder);
}

void writeLoop(ExpressionNode* condition, Statement* body, CodeBuilder& builder)
{
    ExpressionCode::write(condition, builder);
    StatementCode::write(body, builder);
}

// Statements that only contain others.
void writeContainer(Node* statement, CodeBuilder& builder)
{
    if (const auto* block = cast<Block*>(statement)) {
        builder.openBlock();
        StatementCode::writeList(block->statements, builder);
        builder.closeBlock();
    } else if (const auto* loop = cast<WhileStatement*>(statement)) {
        writeLoop(loop->expression, loop->statement, builder);
    } else if (const auto* repeat = cast<DoWhileStatement*>(statement)) {
        writeLoop(repeat->expression, repeat->statement, builder);
    } else if (const auto* labeled = cast<LabelledStatement*>(statement)) {
        StatementCode::write(labeled->statement, builder);
    } else if (const auto* with = cast<WithStatement*>(statement)) {
        writeLoop(with->expression, with->statement, builder);
    } else if (auto* forEach = cast<ForEachStatement*>(statement)) {
        writeForEach(forEach, builder);
    } else if (auto* expression = statement->expressionCast()) {
        ExpressionCode::write(expression, builder);
    }
}

} // namespace

void StatementCode::writeList(StatementList* list, CodeBuilder& builder)
{
    CodeDeclarations::declare(list, builder);
    std::vector<std::unique_ptr<GuardCode>> guards; // that the statements before give
    for (StatementList* item = list; item != nullptr; item = item->next) {
        write(item->statement, builder);
        const auto* condition = cast<IfStatement*>(item->statement);
        if (condition != nullptr && condition->ko == nullptr && SwitchCode::leaves(condition->ok))
            guards.push_back(std::make_unique<GuardCode>(condition->expression, false, builder));
    }
}

void StatementCode::write(Node* statement, CodeBuilder& builder)
{
    const CodeBuilder::Depth depth(builder);
    if (statement == nullptr || depth.isTooDeep())
        return;
    if (const auto* expression = cast<ExpressionStatement*>(statement))
        ExpressionCode::write(expression->expression, builder);
    else if (const auto* variables = cast<VariableStatement*>(statement))
        writeDeclarations(variables->declarations, builder);
    else if (const auto* result = cast<ReturnStatement*>(statement))
        builder.copy(result->expression == nullptr ? CodeSlot() : ExpressionCode::write(result->expression, builder),
                     builder.result);
    else if (auto* function = cast<FunctionDeclaration*>(statement))
        builder.copy(FunctionCode::write(function, builder), builder.variable(function->name.toString()));
    else if (auto* definition = cast<ClassDeclaration*>(statement))
        builder.copy(FunctionCode::writeClass(definition, builder), builder.variable(definition->name.toString()));
    else if (const auto* condition = cast<IfStatement*>(statement))
        writeIf(condition, builder);
    else if (auto* loop = cast<ForStatement*>(statement))
        writeFor(loop, builder);
    else if (const auto* choice = cast<SwitchStatement*>(statement))
        SwitchCode::write(choice, builder);
    else if (const auto* attempt = cast<TryStatement*>(statement))
        writeTry(attempt, builder);
    else if (const auto* error = cast<ThrowStatement*>(statement))
        ExpressionCode::write(error->expression, builder);
    else
        writeContainer(statement, builder);
}

} // namespace ResourceCheck
