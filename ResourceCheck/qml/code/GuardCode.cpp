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
        } else if (binary->op == QSOperator::In && isTrue) {
            addMember(binary->right, binary->left);
        }
    } else if (isTrue) {
        const auto* call = cast<CallExpression*>(condition);
        const auto* method = call == nullptr ? nullptr : cast<FieldMemberExpression*>(call->base);
        if (method != nullptr && method->name == QLatin1String("hasOwnProperty") && call->arguments != nullptr)
            addMember(method->base, call->arguments->expression);
        else
            restrict(condition, CodeAction::Without, builder.emptyText());
    }
}

// The object has the member.
void GuardCode::addMember(ExpressionNode* object, ExpressionNode* name)
{
    ArrayMemberExpression member(object, name);
    restrict(&member, CodeAction::Without, builder.undefined());
}

void GuardCode::addComparison(ExpressionNode* left, ExpressionNode* right, bool isEqual)
{
    const CodeAction action = isEqual ? CodeAction::Only : CodeAction::Without;
    for (const auto& [subject, other] : {std::make_pair(left, right), std::make_pair(right, left)}) {
        const auto* type = cast<TypeOfExpression*>(subject);
        const auto* text = cast<StringLiteral*>(other);
        const auto* name = cast<IdentifierExpression*>(other);
        const bool isUndefined = name != nullptr && name->name == QLatin1String("undefined");
        const bool isTypeUndefined = text != nullptr && text->value == QLatin1String("undefined");
        if (type != nullptr && isEqual != isTypeUndefined)
            restrict(type->expression, CodeAction::Without, builder.undefined());
        else if (isUndefined || other->kind == Node::Kind_NullExpression)
            restrict(subject, action, builder.undefined());
        else
            restrict(subject, action, builder.compared.value(other));
    }
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
