#include "ResourceCheck/qml/flow/FlowUses.h"

#include "ResourceCheck/qml/Handlers.h"
#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>
#include <utility>

namespace ResourceCheck
{

namespace
{

QString textOf(const Place& place)
{
    return QStringLiteral("%1:%2:%3").arg(place.path).arg(place.line).arg(place.column);
}

QString keyOf(const QmlUse& use)
{
    QString key = textOf(use.place) + QStringLiteral(" %1 ").arg(static_cast<int>(use.kind));
    for (const QVector<QmlPattern>& patterns : {use.groups, use.keys}) {
        for (const QmlPattern& pattern : patterns)
            key += pattern.pieces.join(QChar(QChar::Null)) + textOf(pattern.place) + QChar(QChar::LineFeed);
        key += QChar(QChar::LineFeed);
    }
    return key;
}

} // namespace

void FlowUses::record(int member, const CodeOperation& operation, const FlowFrame& frame, std::vector<int> arguments,
                      bool isComplete)
{
    const HandlerMember& called = Handlers::members().at(member);
    const auto count = static_cast<size_t>(called.arguments.size());
    const Place place = this->place(operation, frame);
    if (isComplete && arguments.size() < count) {
        addFault(place,
                 QStringLiteral("%1() needs the arguments %2; add the missing ones")
                     .arg(called.name, called.arguments.join(QStringLiteral(", "))));
        return;
    }
    // The arguments of an incomplete call become more while the analysis runs. Their last slot stays.
    QString key = textOf(place) + QStringLiteral(" %1").arg(member);
    const bool isKnownByLast = !isComplete && !arguments.empty();
    for (auto argument = isKnownByLast ? arguments.end() - 1 : arguments.begin(); argument != arguments.end();
         ++argument)
        key += QStringLiteral(" %1").arg(*argument);
    if (!isComplete && arguments.size() > count)
        arguments.pop_back();
    const Place end{place.path, operation.end.line, operation.end.column};
    records.insert_or_assign(key, Record{member, place, end, std::move(arguments), isComplete});
}

void FlowUses::recordUnknownMember(const QString& owner, const QString& name, const Place& place)
{
    const bool isHandler = flow.handlerNames.values().contains(owner);
    if (Handlers::isCommonName(name) || (!isHandler && Handlers::otherProperties().contains(name)))
        return;
    QStringList names;
    for (const HandlerMember& member : Handlers::members()) {
        if (member.handler == owner)
            names.append(member.name);
    }
    for (const QString& handler : flow.handlerNames.keys()) {
        if (!isHandler && handler.startsWith(owner + QLatin1Char('.')))
            names.append(handler.mid(owner.size() + 1));
    }
    names.sort();
    addFault(
        place,
        QStringLiteral("%1 has no member \"%2\"; use one of: %3").arg(owner, name, names.join(QStringLiteral(", "))));
}

Place FlowUses::place(const CodeOperation& operation, const FlowFrame& frame) const
{
    const QString path = frame.unit == nullptr ? QString() : frame.unit->file->path;
    return {path, operation.position.line, operation.position.column};
}

void FlowUses::addFault(const Place& place, const QString& message)
{
    const QString key = textOf(place) + message;
    if (place.path.isEmpty() || known.contains(key))
        return;
    known.insert(key);
    faultList.append({place, message});
}

QVector<QmlPattern> FlowUses::patterns(const Record& record, size_t argument, bool& isUndeterminable) const
{
    QVector<QmlPattern> list;
    bool isUnknown = !record.isComplete && argument >= record.arguments.size();
    if (argument < record.arguments.size() && record.arguments[argument] >= 0) {
        const FlowValue& value = flow.graph.value(record.arguments[argument]);
        isUnknown = value.isUnknown;
        for (const int text : value.texts) {
            const QmlPattern& pattern = flow.texts().pattern(text);
            list.append(pattern);
            isUndeterminable |= !pattern.isLiteral();
        }
    }
    isUndeterminable |= isUnknown || list.isEmpty();
    if (isUnknown || list.isEmpty())
        list.append(QmlPattern::anything(record.place));
    return list;
}

// Whether each argument has a value.
bool FlowUses::isReached(const Record& record) const
{
    return std::all_of(record.arguments.begin(), record.arguments.end(),
                       [this](int slot) { return slot >= 0 && !flow.graph.value(slot).isEmpty(); });
}

QVector<QmlUse> FlowUses::uses() const
{
    QSet<QString> reached;
    for (const auto& [key, record] : records) {
        if (isReached(record))
            reached.insert(textOf(record.place));
    }
    QVector<QmlUse> list;
    QSet<QString> listed;
    const auto add = [&](const QmlUse& use) {
        const QString key = keyOf(use);
        if (!listed.contains(key))
            list.append(use);
        listed.insert(key);
    };
    for (const auto& [key, record] : records) {
        // A condition keeps all values of this caller away from the lookup.
        if (!isReached(record) && reached.contains(textOf(record.place)))
            continue;
        const ResourceKind kind = Handlers::members().at(record.member).kind;
        QmlUse use{kind, record.place, {QmlPattern::anything(record.place)}, {}, false, record.end};
        if (hasGroupArgument(kind))
            use.groups = patterns(record, 0, use.isUndeterminable);
        use.keys = patterns(record, hasGroupArgument(kind) ? 1 : 0, use.isUndeterminable);
        add(use);
        if (kind == ResourceKind::Icon && record.arguments.size() > 1) {
            QmlUse context{
                ResourceKind::IconContext, record.place, {QmlPattern::anything(record.place)}, {}, false, record.end};
            context.keys = patterns(record, 1, context.isUndeterminable);
            add(context);
        }
    }
    return list;
}

} // namespace ResourceCheck
