#pragma once

#include "ResourceCheck/qml/QmlFault.h"
#include "ResourceCheck/qml/QmlUse.h"
#include "ResourceCheck/qml/flow/FlowObject.h"

#include <QSet>

#include <map>
#include <vector>

namespace ResourceCheck
{

class Flow;
struct FlowValue;

/// Collects the lookups in handlers.
class FlowUses
{
public:
    explicit FlowUses(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// The operation looks the values of the slots up in the member of a handler. They are all arguments if
    /// `isComplete`. Otherwise the last slot has the arguments whose index is not known.
    void record(int member, const CodeOperation& operation, const FlowFrame& frame, std::vector<int> arguments,
                bool isComplete);

    /// QML uses a member that the handler, or the object that leads to handlers, does not have.
    void recordUnknownMember(const QString& owner, const QString& name, const Place& place);

    Place place(const CodeOperation& operation, const FlowFrame& frame) const;

    /// The lookups with what the slots hold now, each once.
    QVector<QmlUse> uses() const;

    /// The calls and names that a device rejects.
    const QVector<QmlFault>& faults() const { return faultList; }

private:
    struct Record {
        int member;
        Place place;
        Place end;
        std::vector<int> arguments;
        bool isComplete;
    };

    bool isReached(const Record& record) const;
    void addFault(const Place& place, const QString& message);
    QVector<QmlPattern> patterns(const Record& record, size_t argument, bool& isUndeterminable) const;

    Flow& flow;
    std::map<QString, Record> records; // by the call and its arguments
    QSet<QString> known;               // faults
    QVector<QmlFault> faultList;
};

} // namespace ResourceCheck
