#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <private/qqmljsast_p.h>

namespace ResourceCheck
{

/// Collects the possible lookups from the syntax tree of one file. The tree must outlive it.
class QmlCollector : public QQmlJS::AST::Visitor
{
public:
    /// A call or an index expression.
    struct Lookup {
        QString path; // of the expression that is called or indexed
        QVector<QQmlJS::AST::ExpressionNode*> arguments;
    };

    const QVector<Lookup>& lookups() const { return lookupList; }

    /// The paths that properties, variables and parameters are bound to by their names; an empty path for any other
    /// value.
    const QHash<QString, QStringList>& bindings() const { return boundPaths; }

    /// All string literals.
    const QSet<QString>& literals() const { return literalSet; }

    /// Whether the tree is too deep to be visited completely.
    bool isTooDeep() const { return tooDeep; }

private:
    using Visitor::visit;
    bool visit(QQmlJS::AST::UiPublicMember* property) override;
    bool visit(QQmlJS::AST::UiScriptBinding* binding) override;
    bool visit(QQmlJS::AST::PatternElement* variable) override;
    bool visit(QQmlJS::AST::PatternProperty* variable) override;
    bool visit(QQmlJS::AST::CallExpression* call) override;
    bool visit(QQmlJS::AST::ArrayMemberExpression* index) override;
    bool visit(QQmlJS::AST::StringLiteral* literal) override;
    bool visit(QQmlJS::AST::StringLiteralPropertyName* name) override;
    bool visit(QQmlJS::AST::TemplateLiteral* literal) override;
    void throwRecursionDepthError() override;
    void bind(const QString& name, QQmlJS::AST::Node* value);

    QVector<Lookup> lookupList;
    QHash<QString, QStringList> boundPaths;
    QSet<QString> literalSet;
    bool tooDeep = false;
};

} // namespace ResourceCheck
