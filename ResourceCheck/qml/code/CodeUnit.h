#pragma once

#include <QHash>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace ResourceCheck
{

struct CodeFile;

/// A variable or an intermediate result of a unit, or of the unit that is this number of levels further out.
struct CodeSlot {
    int level = 0;
    int index = -1;

    bool isValid() const { return index >= 0; }
};

/// A place in the file of the unit.
struct CodePosition {
    int line = 0;
    int column = 0;
};

/// What an operation does with its slots.
enum class CodeAction {
    Text,      // target = the text `number`
    Unknown,   // target = any value
    Copy,      // target = left
    Default,   // target = left, if the caller does not pass the parameter `number` or `undefined`
    Name,      // target = the value of the name `number`, which is not a variable, for the scope object `left`
    SetName,   // the same name = right
    Get,       // target = left.number
    GetAt,     // target = left[right]
    Set,       // left.number = right
    SetAt,     // left[right] = target
    SetKey,    // the same for a key that an object literal lists
    Object,    // target = {}
    Array,     // target = [arguments]
    Spread,    // copies all members of left to target
    Element,   // target = one element of left
    Keys,      // target = one key of left
    Function,  // target = the function `number`
    Component, // target = the component `number`
    Call,      // target = left(arguments) with right as `this`
    New,       // target = new left(arguments)
    Add,       // target = left + right
    Without,   // target = left without the text of right; nothing while right has no value
    Only,      // target = the texts of left that right has, too; those of right if left is unknown
    Import     // target = the member `number` of the module that `import` of the unit names
};

struct CodeArgument {
    CodeSlot slot;
    bool isSpread = false;
};

struct CodeOperation {
    CodeAction action;
    CodeSlot target;
    CodeSlot left;
    CodeSlot right;
    int number = -1;
    QVector<CodeArgument> arguments;
    CodePosition position;
    CodePosition end{}; // of a call or of `left[right]`
};

struct CodeParameter {
    CodeSlot slot;
    bool isRest = false;
};

/// A property, method or signal that an object definition declares.
struct CodeProperty {
    int name;
    bool isRequired = false;
    bool isSignal = false;
    bool isReadonly = false;
    QVector<int> parameters = {}; // of a signal
};

/// `path: value`, with one name in the path for `color` and two for `font.family`.
struct CodeBinding {
    QVector<int> path;
    CodeSlot value;
    bool isAlias = false;
};

/// The definition of an object in QML.
struct CodeObject {
    QStringList type;
    int parent = -1;
    int slot = -1; // holds the object
    QVector<CodeProperty> properties;
    QVector<CodeBinding> bindings;
    QVector<int> children; // in the default property
};

/// A function, a component or the code of a JavaScript file. Units are nested as in the code.
struct CodeUnit {
    enum Kind { Module, Component, Function };

    Kind kind;
    const CodeFile* file;
    int slotCount = 0;
    std::vector<CodeOperation> operations;
    std::vector<std::unique_ptr<CodeUnit>> units;
    // Of a function.
    QVector<CodeParameter> parameters;
    int thisSlot = -1;
    int resultSlot = -1;
    // Of a module: the slots of exported names. Of a component: the slots of ids.
    QHash<int, int> names;
    QStringList reexported; // modules of `export * from`
    // Of a component. The first object is its root.
    std::vector<CodeObject> objects;
};

} // namespace ResourceCheck
