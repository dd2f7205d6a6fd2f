#include "ResourceCheck/qml/QmlCollector.h"

#include "ResourceCheck/qml/QmlExpression.h"

using namespace QQmlJS;

namespace
{

AST::Node* valueOf(AST::Statement* statement)
{
    const auto* expression = AST::cast<AST::ExpressionStatement*>(statement);
    return expression == nullptr ? nullptr : expression->expression;
}

} // namespace

bool QmlCollector::visit(AST::UiPublicMember* property)
{
    if (property->statement != nullptr)
        bind(property->name, valueOf(property->statement));
    return true;
}

bool QmlCollector::visit(AST::UiScriptBinding* binding)
{
    bind(AST::lastListElement(binding->qualifiedId)->name, valueOf(binding->statement));
    return true;
}

bool QmlCollector::visit(AST::PatternElement* variable)
{
    bind(variable->bindingIdentifier, variable->initializer);
    return true;
}

bool QmlCollector::visit(AST::PatternProperty* variable)
{
    bind(variable->bindingIdentifier, nullptr);
    return true;
}

bool QmlCollector::visit(AST::CallExpression* call)
{
    Question question{QmlExpression::path(call->base), {}};
    for (AST::ArgumentList* argument = call->arguments; argument != nullptr; argument = argument->next)
        question.arguments.append(argument->expression);
    questionList.append(question);
    return true;
}

bool QmlCollector::visit(AST::ArrayMemberExpression* index)
{
    questionList.append({QmlExpression::path(index->base), {index->expression}});
    return true;
}

bool QmlCollector::visit(AST::StringLiteral* literal)
{
    literalSet.insert(literal->value.toString());
    return true;
}

bool QmlCollector::visit(AST::StringLiteralPropertyName* name)
{
    literalSet.insert(name->id.toString());
    return true;
}

// Called for every part of a template; Qt's walk passes over the expressions between them.
bool QmlCollector::visit(AST::TemplateLiteral* literal)
{
    if (literal->expression == nullptr)
        literalSet.insert(literal->value.toString());
    AST::Node::accept(literal->expression, this);
    return true;
}

void QmlCollector::throwRecursionDepthError()
{
    tooDeep = true;
}

void QmlCollector::bind(const QStringRef& name, AST::Node* value)
{
    if (!name.isEmpty())
        boundPaths[name.toString()].append(QmlExpression::path(value));
}
