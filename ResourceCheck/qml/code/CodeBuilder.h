#pragma once

#include "ResourceCheck/qml/code/CodeFile.h"
#include "ResourceCheck/qml/code/CodeNames.h"
#include "ResourceCheck/qml/code/CodeTexts.h"

#include <QSet>

namespace ResourceCheck
{

/// What the code of all files shares while it is translated.
struct CodeTables {
    CodeNames names;
    CodeTexts texts;
    QSet<QString> literals;
};

/// Appends operations to a unit and knows the variables that are in scope.
class CodeBuilder
{
public:
    CodeBuilder(CodeUnit& ownUnit, CodeBuilder* outerBuilder, CodeFile& codeFile, CodeTables& codeTables);

    /// Adds a unit inside this one. Its number is the last one of `unit.units`.
    CodeUnit& addUnit(CodeUnit::Kind kind);

    CodeSlot newSlot();

    /// Appends the operation with a new slot as its target and returns that slot.
    CodeSlot compute(CodeOperation operation);
    CodeSlot compute(CodeAction action, CodeSlot left = {}, CodeSlot right = {}, int number = -1);

    /// Appends the operation with the target that it has.
    void append(const CodeOperation& operation);
    void copy(CodeSlot source, CodeSlot target);

    CodeSlot text(const QString& text, CodePosition position, bool isNumber = false);
    CodeSlot emptyText() { return compute(CodeAction::Text, {}, {}, tables.texts.add(QString(), {})); }
    CodeSlot undefined() { return compute(CodeAction::Text, {}, {}, tables.texts.number(QmlPattern::undefined())); }
    CodeSlot unknown() { return compute(CodeAction::Unknown); }

    void openBlock() { blocks.append(QHash<QString, CodeSlot>()); }
    void closeBlock() { blocks.removeLast(); }
    CodeSlot declare(const QString& name);

    /// The variable, or an invalid slot if the name is not a variable.
    CodeSlot variable(const QString& name) const;

    /// Makes the variables of the outermost block visible outside the unit.
    void exportVariables();

    /// The scope object of a name that is not a variable: the level of its component, -1 in a module, and its number.
    CodeSlot scope() const;

    /// The value of `this`.
    CodeSlot thisValue() const;

    int number(const QString& name) { return tables.names.number(name); }
    Place place(CodePosition position) const { return {file.path, position.line, position.column}; }

    CodeUnit& unit;
    CodeFile& file;
    CodeTables& tables;
    int scopeObject = 0;     // in a component
    CodeSlot result;         // receives the values of `return`
    bool hasOwnThis = false; // not in arrow functions

    /// Values of paths such as `row.name` that a condition restricts in the code it guards, by the text of the path.
    QVector<QHash<QString, CodeSlot>> guards;

    /// Values of the sides of comparisons, which have been written with the condition.
    QHash<const void*, CodeSlot> compared;

    /// Limits the depth of recursion.
    struct Depth {
        explicit Depth(CodeBuilder& builder);
        ~Depth() { --depth; }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;
        bool isTooDeep() const;
        int& depth;
    };
    bool isTooDeep() const { return *tooDeep; }

private:
    CodeBuilder* outer;
    QVector<QHash<QString, CodeSlot>> blocks;
    std::shared_ptr<int> depth;    // of the expressions and statements around this one
    std::shared_ptr<bool> tooDeep; // the code was left out
};

} // namespace ResourceCheck
