#pragma once

#include "ResourceCheck/qml/code/CodeUnit.h"

#include <QSet>

namespace ResourceCheck
{

/// The code of a unit with slots of its own: one call of a function or one object made from a component.
struct FlowFrame {
    const CodeUnit* unit;
    FlowFrame* parent;      // of the unit around this one
    const FlowFrame* maker; // that called the function or made the object
    int firstSlot;
    int depth;
    int argumentCount = -1;   // of the call; -1 if there are several
    int element = -1;         // the slot with the element of the model that a delegate shows
    std::vector<int> objects; // of a component

    /// The number of the slot in the graph.
    int slot(CodeSlot slot) const;
};

/// Something with members or that can be called. One object represents all that the same code makes in a frame.
struct FlowObject {
    enum Kind {
        Literal,   // an object that a script makes
        Array,     // an array
        Instance,  // an object that QML makes
        Function,  // `unit` in `frame`
        Component, // `unit` in `frame`
        Signal,    // the signal `name` of the instance `owner`
        Module,    // the JavaScript file of `frame`
        Qualifier, // of an import: `name` in the file of `unit`
        Handlers,  // an object that leads to handlers: `path`
        Handler,   // of the class `path`
        Method,    // of a handler: the number `name` in handlerMembers()
        Map,       // of a handler: the number `name` in handlerMembers()
        Builtin    // of QML or JavaScript: `name`, for example `Object` or `Object.keys`
    };

    Kind kind;
    const CodeUnit* unit = nullptr;
    FlowFrame* frame = nullptr;
    int name = -1;
    int owner = -1;
    QString path = {};
    QHash<int, int> members = {};                // slots by name
    int all = -1;                                // the slot with the values of all members
    int any = -1;                                // the slot with values of members whose name is not known
    bool isShared = false;                       // an instance that represents several objects of one component
    QVector<int> keys = {};                      // of an object literal, as texts
    QSet<int> bound = {};                        // properties of an instance that QML binds; members of a literal
    bool isOpen = false;                         // a literal that may have members that are not in `bound`
    QVector<const CodeObject*> definitions = {}; // of an instance, the outermost one first
};

} // namespace ResourceCheck
