#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// What a condition says about the values of paths, for as long as the object lives: in the first branch of
/// `name !== "none" ? getColor("Day", name) : "black"`, the name is not "none".
class GuardCode
{
public:
    /// The condition is true or false in the code that is written meanwhile.
    GuardCode(QQmlJS::AST::ExpressionNode* condition, bool isTrue, CodeBuilder& codeBuilder);

    /// The subject of a `switch` has one of the values of `cases`, or none of the texts of `others`.
    GuardCode(QQmlJS::AST::ExpressionNode* subject, CodeSlot cases, const QVector<CodeSlot>& others,
              CodeBuilder& codeBuilder);
    ~GuardCode() { builder.guards.removeLast(); }
    GuardCode(const GuardCode&) = delete;
    GuardCode& operator=(const GuardCode&) = delete;

    /// The restricted value of the expression; invalid if no guard restricts it.
    static CodeSlot value(QQmlJS::AST::ExpressionNode* expression, const CodeBuilder& builder);

private:
    void add(QQmlJS::AST::ExpressionNode* condition, bool isTrue);
    void addComparison(QQmlJS::AST::ExpressionNode* left, QQmlJS::AST::ExpressionNode* right, bool isEqual);
    void addMember(QQmlJS::AST::ExpressionNode* object, QQmlJS::AST::ExpressionNode* name);
    void restrict(QQmlJS::AST::ExpressionNode* subject, CodeAction action, CodeSlot texts);

    CodeBuilder& builder;
};

} // namespace ResourceCheck
