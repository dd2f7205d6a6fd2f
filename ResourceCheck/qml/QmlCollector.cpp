#include "ResourceCheck/qml/QmlCollector.h"

#include "ResourceCheck/qml/QmlExpression.h"

using namespace QQmlJS;

namespace ResourceCheck
{

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
        bind(property->name.toString(), valueOf(property->statement));
    return true;
}

bool QmlCollector::visit(AST::UiScriptBinding* binding)
{
    bind(AST::lastListElement(binding->qualifiedId)->name.toString(), valueOf(binding->statement));
    return true;
}

bool QmlCollector::visit(AST::PatternElement* variable)
{
    bind(variable->bindingIdentifier.toString(), variable->initializer);
    return true;
}

bool QmlCollector::visit(AST::PatternProperty* variable)
{
    bind(variable->bindingIdentifier.toString(), nullptr);
    return true;
}

bool QmlCollector::visit(AST::CallExpression* call)
{
    Lookup lookup{QmlExpression::path(call->base), {}};
    for (AST::ArgumentList* argument = call->arguments; argument != nullptr; argument = argument->next)
        lookup.arguments.append(argument->expression);
    lookupList.append(lookup);
    return true;
}

bool QmlCollector::visit(AST::ArrayMemberExpression* index)
{
    lookupList.append({QmlExpression::path(index->base), {index->expression}});
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

// Called for each part of a template. Qt's visitor skips the expressions between the parts.
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

void QmlCollector::bind(const QString& name, AST::Node* value)
{
    if (!name.isEmpty())
        boundPaths[name].append(QmlExpression::path(value));
}

} // namespace ResourceCheck
