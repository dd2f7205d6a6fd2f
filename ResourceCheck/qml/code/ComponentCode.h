#pragma once

#include "ResourceCheck/qml/code/CodeBuilder.h"

#include <private/qqmljsastfwd_p.h>

namespace ResourceCheck
{

/// What Qt Quick's own types do with the objects and properties that QML gives them.
namespace ComponentCode
{

/// The parts of a name such as `anchors.fill`.
QStringList names(QQmlJS::AST::UiQualifiedId* id);

/// Whether the name begins with a capital letter, as the names of types do.
bool isUpper(const QString& name);

/// Whether Qt Quick makes objects from the value of the property, so that an object there is a component.
bool isComponentProperty(const QString& property);

/// Whether the objects in an object of the type are its delegate.
bool isDelegateOwner(const QStringList& type);

/// Writes the content of `Component { }` and returns the component.
CodeSlot writeComponent(QQmlJS::AST::UiObjectInitializer* initializer, CodeBuilder& builder);

/// Writes `component NAME: TYPE { }`.
void writeInline(QQmlJS::AST::UiInlineComponent* component, CodeBuilder& builder);

/// The object at the end of the path.
CodeSlot writePath(CodeSlot object, const QStringList& path, CodeBuilder& builder);

/// Writes what `PropertyChanges`, `Binding` and animations assign to other objects.
void writeAssignments(int object, CodeBuilder& builder);

} // namespace ComponentCode

} // namespace ResourceCheck
