#include "ResourceCheck/qml/code/CodeBuilder.h"

namespace ResourceCheck
{

CodeBuilder::CodeBuilder(CodeUnit& ownUnit, CodeBuilder* outerBuilder, CodeFile& codeFile, CodeTables& codeTables)
    : unit(ownUnit)
    , file(codeFile)
    , tables(codeTables)
    , outer(outerBuilder)
    , blocks{{}}
    , depth(outerBuilder != nullptr ? outerBuilder->depth : std::make_shared<int>(0))
    , tooDeep(outerBuilder != nullptr ? outerBuilder->tooDeep : std::make_shared<bool>(false))
{
}

CodeUnit& CodeBuilder::addUnit(CodeUnit::Kind kind)
{
    unit.units.push_back(std::make_unique<CodeUnit>());
    unit.units.back()->kind = kind;
    unit.units.back()->file = &file;
    return *unit.units.back();
}

CodeSlot CodeBuilder::newSlot()
{
    return {0, unit.slotCount++};
}

CodeSlot CodeBuilder::compute(CodeOperation operation)
{
    operation.target = newSlot();
    append(operation);
    return operation.target;
}

CodeSlot CodeBuilder::compute(CodeAction action, CodeSlot left, CodeSlot right, int number)
{
    return compute({action, {}, left, right, number, {}, {}});
}

void CodeBuilder::append(const CodeOperation& operation)
{
    unit.operations.push_back(operation);
}

void CodeBuilder::copy(CodeSlot source, CodeSlot target)
{
    if (source.isValid() && target.isValid())
        append({CodeAction::Copy, target, source, {}, -1, {}, {}});
}

CodeSlot CodeBuilder::text(const QString& text, CodePosition position, bool isNumber)
{
    if (!isNumber)
        tables.literals.insert(text);
    return compute(CodeAction::Text, {}, {}, tables.texts.add(text, place(position), isNumber));
}

CodeSlot CodeBuilder::declare(const QString& name)
{
    CodeSlot& slot = blocks.last()[name];
    if (!slot.isValid())
        slot = newSlot();
    return slot;
}

CodeSlot CodeBuilder::variable(const QString& name) const
{
    int level = 0;
    for (const CodeBuilder* builder = this; builder != nullptr; builder = builder->outer, ++level) {
        for (int block = builder->blocks.size() - 1; block >= 0; --block) {
            const auto found = builder->blocks.at(block).constFind(name);
            if (found != builder->blocks.at(block).constEnd())
                return {level, found->index};
        }
    }
    return {};
}

void CodeBuilder::exportVariables()
{
    const QHash<QString, CodeSlot>& variables = blocks.first();
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        unit.names.insert(number(variable.key()), variable->index);
}

CodeSlot CodeBuilder::scope() const
{
    int level = 0;
    for (const CodeBuilder* builder = this; builder != nullptr; builder = builder->outer, ++level) {
        if (builder->unit.kind == CodeUnit::Component)
            return {level, builder->scopeObject};
    }
    return {-1, -1};
}

CodeSlot CodeBuilder::thisValue() const
{
    int level = 0;
    for (const CodeBuilder* builder = this; builder != nullptr; builder = builder->outer, ++level) {
        if (builder->hasOwnThis)
            return {level, builder->unit.thisSlot};
        if (builder->unit.kind == CodeUnit::Component)
            return {level, builder->unit.objects.at(static_cast<size_t>(builder->scopeObject)).slot};
    }
    return {};
}

CodeBuilder::Depth::Depth(CodeBuilder& builder)
    : depth(*builder.depth)
{
    ++depth;
    if (isTooDeep())
        *builder.tooDeep = true;
}

bool CodeBuilder::Depth::isTooDeep() const
{
    constexpr int maximumDepth = 500;
    return depth > maximumDepth;
}

} // namespace ResourceCheck
