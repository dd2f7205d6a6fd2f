#pragma once

#include "ResourceCheck/qml/flow/FlowArrays.h"
#include "ResourceCheck/qml/flow/FlowBuiltins.h"
#include "ResourceCheck/qml/flow/FlowCalls.h"
#include "ResourceCheck/qml/flow/FlowComponents.h"
#include "ResourceCheck/qml/flow/FlowDelegates.h"
#include "ResourceCheck/qml/flow/FlowFrames.h"
#include "ResourceCheck/qml/flow/FlowInstances.h"
#include "ResourceCheck/qml/flow/FlowLists.h"
#include "ResourceCheck/qml/flow/FlowMembers.h"
#include "ResourceCheck/qml/flow/FlowMissing.h"
#include "ResourceCheck/qml/flow/FlowNames.h"
#include "ResourceCheck/qml/flow/FlowObjects.h"
#include "ResourceCheck/qml/flow/FlowReader.h"
#include "ResourceCheck/qml/flow/FlowStarter.h"
#include "ResourceCheck/qml/flow/FlowTask.h"
#include "ResourceCheck/qml/flow/FlowTexts.h"
#include "ResourceCheck/qml/flow/FlowUses.h"
#include "ResourceCheck/qml/flow/FrontEnd.h"

namespace ResourceCheck
{

/// Everything that the value analysis of a front end works on. Its parts refer to each other through it.
class Flow
{
public:
    /// `handlers` gives the classes by their names in QML. Both must outlive the object.
    Flow(FrontEnd& codeOfFrontEnd, const QHash<QString, QString>& handlers);

    /// Lets values flow until nothing changes any more.
    void run();

    /// Adds a task that is due when one of the slots has grown.
    int addTask(const FlowTask& task, std::initializer_list<int> slots);

    int number(const QString& name) { return frontEnd.tables.names.number(name); }
    const QString& name(int number) const { return frontEnd.tables.names.name(number); }
    CodeTexts& texts() { return frontEnd.tables.texts; }

    FrontEnd& frontEnd;
    const QHash<QString, QString>& handlerNames;
    QSet<QString> handlerOwners; // all that leads to handlers: `Ui` for `Ui.colors`
    FlowGraph graph;
    FlowObjects objects;
    FlowFrames frames;
    FlowInstances instances;
    FlowStarter starter;
    FlowNames names;
    FlowMembers members;
    FlowReader reader;
    FlowCalls calls;
    FlowBuiltins builtins;
    FlowComponents components;
    FlowArrays arrays;
    FlowLists lists;
    FlowMissing missing;
    FlowTexts textValues;
    FlowDelegates delegates;
    FlowUses uses;

private:
    void perform(int number);
    void perform(int number, const CodeOperation& operation, FlowFrame& frame);

    void performSpread(const CodeOperation& operation, FlowFrame& frame);

    std::deque<FlowTask> tasks;
};

} // namespace ResourceCheck
