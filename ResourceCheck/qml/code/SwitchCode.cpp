#include "ResourceCheck/qml/code/SwitchCode.h"

#include "ResourceCheck/qml/code/CodeDeclarations.h"
#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/GuardCode.h"
#include "ResourceCheck/qml/code/StatementCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

void writeCases(ExpressionNode* subject, CaseClauses* clauses, QVector<CodeSlot>& others, CodeBuilder& builder)
{
    CodeSlot cases;
    for (CaseClauses* item = clauses; item != nullptr; item = item->next) {
        if (!cases.isValid())
            cases = builder.newSlot(); // of this case and of those that continue into it
        const CodeSlot value = ExpressionCode::write(item->clause->expression, builder);
        builder.copy(value, cases);
        others.append(value);
        const GuardCode guard(subject, cases, {}, builder);
        StatementList* last = nullptr;
        for (StatementList* part = item->clause->statements; part != nullptr; part = part->next) {
            StatementCode::write(part->statement, builder);
            last = part;
        }
        if (last != nullptr && SwitchCode::leaves(last->statement))
            cases = {};
    }
}

} // namespace

bool SwitchCode::leaves(Node* statement)
{
    if (const auto* block = cast<Block*>(statement)) {
        StatementList* last = block->statements;
        while (last != nullptr && last->next != nullptr)
            last = last->next;
        return last != nullptr && leaves(last->statement);
    }
    return statement != nullptr
        && (statement->kind == Node::Kind_ReturnStatement || statement->kind == Node::Kind_ThrowStatement
            || statement->kind == Node::Kind_BreakStatement || statement->kind == Node::Kind_ContinueStatement);
}

void SwitchCode::write(const SwitchStatement* statement, CodeBuilder& builder)
{
    ExpressionCode::write(statement->expression, builder);
    builder.openBlock();
    CodeDeclarations::declareCases(statement->block, builder);
    QVector<CodeSlot> others;
    writeCases(statement->expression, statement->block->clauses, others, builder);
    writeCases(statement->expression, statement->block->moreClauses, others, builder);
    if (statement->block->defaultClause != nullptr) {
        const GuardCode guard(statement->expression, {}, others, builder);
        for (StatementList* part = statement->block->defaultClause->statements; part != nullptr; part = part->next)
            StatementCode::write(part->statement, builder);
    }
    builder.closeBlock();
}

} // namespace ResourceCheck
