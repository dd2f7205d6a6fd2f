#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// Translates the objects of a QML component.
class ObjectCode
{
public:
    /// Writes to the unit of the builder, which must be a component.
    explicit ObjectCode(CodeBuilder& codeBuilder)
        : builder(codeBuilder)
    {
    }

    /// Writes the object and everything in it. Returns its number, which is 0 for the root.
    int write(const QStringList& type, QQmlJS::AST::UiObjectInitializer* initializer, int parent);

private:
    CodeObject& object(int number) { return builder.unit.objects.at(static_cast<size_t>(number)); }
    void writeMember(QQmlJS::AST::UiObjectMember* member, int owner);
    void writeProperty(QQmlJS::AST::UiPublicMember* property, int owner);
    void writeSignal(QQmlJS::AST::UiPublicMember* signal, int owner);
    void writeScript(QQmlJS::AST::UiScriptBinding* binding, int owner);
    void writeObjectBinding(QQmlJS::AST::UiObjectBinding* binding, int owner);
    void writeGroup(const QStringList& path, QQmlJS::AST::UiObjectInitializer* initializer, int owner);
    void writeMethod(QQmlJS::AST::Node* source, int owner);
    CodeSlot writeStatement(QQmlJS::AST::Statement* statement);
    CodeSlot writeValue(QQmlJS::AST::UiObjectMember* member, const QString& property, int owner);
    CodeSlot writeArray(QQmlJS::AST::UiArrayMemberList* members, int owner);
    CodeSlot writeObject(const QStringList& type, QQmlJS::AST::UiObjectInitializer* initializer,
                         const QString& property, int owner);
    CodeSlot writeComponent(const QStringList& type, QQmlJS::AST::UiObjectInitializer* initializer);
    void bind(int owner, const QStringList& path, CodeSlot value, bool isAlias = false);

    CodeBuilder& builder;
    QStringList prefix; // of the names in a group such as `font { }`
};

} // namespace ResourceCheck
