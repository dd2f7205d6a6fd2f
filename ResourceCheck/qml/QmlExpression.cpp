#include "ResourceCheck/qml/QmlExpression.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS;

namespace ResourceCheck
{

namespace
{

using Texts = QVector<QmlPattern>;

constexpr int maximumDepth = 500; // of nested expressions
constexpr int maximumTexts = 64;  // of a concatenation

Place placeOf(const QString& file, const SourceLocation& location)
{
    return {file, static_cast<int>(location.startLine), static_cast<int>(location.startColumn)};
}

Texts sum(const Texts& left, const Texts& right)
{
    if (left.size() * right.size() > maximumTexts)
        return {QmlPattern::anything(left.first().place)};
    Texts sums;
    for (const QmlPattern& leftText : left) {
        for (const QmlPattern& rightText : right)
            sums.append(leftText + rightText);
    }
    return sums;
}

Texts textsAt(AST::ExpressionNode* expression, const QString& file, int depth);

Texts templateTexts(AST::TemplateLiteral* literal, const QString& file, int depth)
{
    const Place place = placeOf(file, literal->literalToken);
    Texts texts{QmlPattern::literal(QString(), place)};
    for (AST::TemplateLiteral* part = literal; part != nullptr; part = part->next) {
        texts = sum(texts, {QmlPattern::literal(part->value.toString(), place)});
        if (part->expression != nullptr)
            texts = sum(texts, textsAt(part->expression, file, depth));
    }
    return texts;
}

Texts textsAt(AST::ExpressionNode* expression, const QString& file, int depth)
{
    const int inner = depth + 1;
    const Place place = placeOf(file, expression->firstSourceLocation());
    if (inner > maximumDepth)
        return {QmlPattern::anything(place)};
    if (const auto* literal = AST::cast<AST::StringLiteral*>(expression))
        return {QmlPattern::literal(literal->value.toString(), place)};
    if (auto* literal = AST::cast<AST::TemplateLiteral*>(expression))
        return templateTexts(literal, file, inner);
    if (const auto* nested = AST::cast<AST::NestedExpression*>(expression))
        return textsAt(nested->expression, file, inner);
    if (const auto* condition = AST::cast<AST::ConditionalExpression*>(expression))
        return textsAt(condition->ok, file, inner) + textsAt(condition->ko, file, inner);
    if (const auto* binary = AST::cast<AST::BinaryExpression*>(expression)) {
        if (binary->op == QSOperator::Or || binary->op == QSOperator::Coalesce)
            return textsAt(binary->left, file, inner) + textsAt(binary->right, file, inner);
        if (binary->op == QSOperator::Add)
            return sum(textsAt(binary->left, file, inner), textsAt(binary->right, file, inner));
    }
    return {QmlPattern::anything(place)};
}

} // namespace

QString QmlExpression::path(AST::Node* expression)
{
    QStringList names;
    for (AST::Node* node = expression; node != nullptr;) {
        if (const auto* nested = AST::cast<AST::NestedExpression*>(node)) {
            node = nested->expression;
        } else if (const auto* member = AST::cast<AST::FieldMemberExpression*>(node)) {
            names.prepend(member->name.toString());
            node = member->base;
        } else {
            const auto* identifier = AST::cast<AST::IdentifierExpression*>(node);
            names.prepend(identifier == nullptr ? QString() : identifier->name.toString());
            node = nullptr;
        }
    }
    return names.join(QLatin1Char('.'));
}

QVector<QmlPattern> QmlExpression::texts(AST::ExpressionNode* expression, const QString& file)
{
    return textsAt(expression, file, 0);
}

} // namespace ResourceCheck
