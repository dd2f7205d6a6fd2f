#include "ResourceCheck/qml/code/GuardCode.h"

#include "ResourceCheck/qml/code/ExpressionCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

GuardCode::GuardCode(ExpressionNode* condition, bool isTrue, CodeBuilder& codeBuilder)
    : builder(codeBuilder)
{
    builder.guards.append(QHash<QString, CodeSlot>());
    add(condition, isTrue);
}

GuardCode::GuardCode(ExpressionNode* subject, CodeSlot cases, const QVector<CodeSlot>& others, CodeBuilder& codeBuilder)
    : builder(codeBuilder)
{
    builder.guards.append(QHash<QString, CodeSlot>());
    if (cases.isValid())
        restrict(subject, CodeAction::Only, cases);
    for (const CodeSlot other : others)
        restrict(subject, CodeAction::Without, other);
}

CodeSlot GuardCode::value(ExpressionNode* expression, const CodeBuilder& builder)
{
    if (builder.guards.isEmpty())
        return {};
    const QString path = ExpressionCode::path(expression);
    for (int index = builder.guards.size() - 1; index >= 0 && !path.isNull(); --index) {
        const auto found = builder.guards.at(index).constFind(path);
        if (found != builder.guards.at(index).constEnd())
            return *found;
    }
    return {};
}

void GuardCode::add(ExpressionNode* condition, bool isTrue)
{
    if (const auto* nested = cast<NestedExpression*>(condition)) {
        add(nested->expression, isTrue);
    } else if (const auto* negation = cast<NotExpression*>(condition)) {
        add(negation->expression, !isTrue);
    } else if (const auto* binary = cast<BinaryExpression*>(condition)) {
        const bool isEqual = binary->op == QSOperator::Equal || binary->op == QSOperator::StrictEqual;
        if (binary->op == (isTrue ? QSOperator::And : QSOperator::Or)) {
            add(binary->left, isTrue);
            add(binary->right, isTrue);
        } else if (isEqual || binary->op == QSOperator::NotEqual || binary->op == QSOperator::StrictNotEqual) {
            addComparison(binary->left, binary->right, isEqual == isTrue);
        }
    } else if (isTrue) {
        const CodeSlot empty = builder.compute(CodeAction::Text, {}, {}, builder.tables.texts.add(QString(), {}));
        restrict(condition, CodeAction::Without, empty);
    }
}

void GuardCode::addComparison(ExpressionNode* left, ExpressionNode* right, bool isEqual)
{
    const CodeAction action = isEqual ? CodeAction::Only : CodeAction::Without;
    restrict(left, action, builder.compared.value(right));
    restrict(right, action, builder.compared.value(left));
}

void GuardCode::restrict(ExpressionNode* subject, CodeAction action, CodeSlot texts)
{
    const QString path = ExpressionCode::path(subject);
    if (path.isNull() || !texts.isValid())
        return;
    const CodeSlot value = ExpressionCode::write(subject, builder); // which an outer guard may restrict, too
    if (value.isValid())
        builder.guards.last().insert(path, builder.compute(action, value, texts));
}

} // namespace ResourceCheck
