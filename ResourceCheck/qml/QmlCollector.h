#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <private/qqmljsast_p.h>

/// Collects from the tree of one file what may be questions to a handler. Lives no longer than the tree.
class QmlCollector : public QQmlJS::AST::Visitor
{
public:
    /// A call or an index.
    struct Question {
        QString path; // of what is called or indexed
        QVector<QQmlJS::AST::ExpressionNode*> arguments;
    };

    const QVector<Question>& questions() const { return questionList; }

    /// What the properties, variables and parameters are bound to: paths, empty for what has none.
    const QHash<QString, QStringList>& bindings() const { return boundPaths; }

    const QSet<QString>& literals() const { return literalSet; }

    /// The tree is too deep to see all of it.
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
    void bind(const QStringRef& name, QQmlJS::AST::Node* value);

    QVector<Question> questionList;
    QHash<QString, QStringList> boundPaths;
    QSet<QString> literalSet;
    bool tooDeep = false;
};
