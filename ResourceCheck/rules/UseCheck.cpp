#include "ResourceCheck/rules/UseCheck.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace ResourceCheck
{

namespace
{

bool isBefore(const Place& left, const Place& right)
{
    return std::tie(left.line, left.column) < std::tie(right.line, right.column);
}

} // namespace

UseCheck::UseCheck(const QmlUse& checkedUse, const KnownNames& existingNames)
    : use(checkedUse)
    , names(existingNames)
    , groups(relevant(checkedUse.groups))
    , keys(relevant(checkedUse.keys))
{
}

// If there are several groups and several keys, QML may combine them in pairs only. Then not every group has to have
// every key.
void UseCheck::run(const Report& report) const
{
    bool isSomeKnown = false;
    for (const QmlPattern& key : keys) {
        const bool isKnown = hasSomeGroup(key);
        isSomeKnown |= isKnown;
        if (isExact() || (!isKnown && !groups.isEmpty())) {
            for (const QmlPattern& group : isExact() ? groups : groups.mid(0, 1))
                checkKey(group, key, report);
        }
    }
    for (const QmlPattern& group : groups) {
        if (isSomeKnown && !isExact() && !hasSomeKey(group))
            checkKey(group, keys.first(), report);
    }
}

// An empty text is the value of a property that nothing has set yet, unless the call itself has it.
QVector<QmlPattern> UseCheck::relevant(const QVector<QmlPattern>& patterns) const
{
    QVector<QmlPattern> list;
    std::copy_if(patterns.begin(), patterns.end(), std::back_inserter(list), [this](const QmlPattern& pattern) {
        const bool isInCall = pattern.place.path == use.place.path && !isBefore(pattern.place, use.place)
            && isBefore(pattern.place, use.end);
        return !pattern.isLiteral() || pattern.hasText() || isInCall;
    });
    // The order of the analysis depends on how the code is written.
    std::stable_sort(list.begin(), list.end(),
                     [](const auto& left, const auto& right) { return left.text() < right.text(); });
    return list;
}

// Names that belong together in pairs are written in the same file.
bool UseCheck::areIndependent() const
{
    const auto isFromSameFile = [this](const QmlPattern& pattern) {
        return pattern.place.path == groups.first().place.path;
    };
    return !groups.isEmpty() && std::all_of(groups.begin(), groups.end(), isFromSameFile)
        && std::none_of(keys.begin(), keys.end(), isFromSameFile);
}

bool UseCheck::isExact() const
{
    const auto isUncertain = [](const QmlPattern& pattern) { return pattern.isUncertain || !pattern.isLiteral(); };
    return hasGroupArgument(use.kind) && (groups.size() == 1 || keys.size() == 1 || areIndependent())
        && std::none_of(groups.begin(), groups.end(), isUncertain)
        && std::none_of(keys.begin(), keys.end(), isUncertain);
}

bool UseCheck::exists(const QmlPattern& group, const QmlPattern& key) const
{
    const bool isAnything = !group.isLiteral() && !group.hasText() && !key.isLiteral() && !key.hasText();
    return isAnything || names.contains(use.name(group, key));
}

bool UseCheck::hasSomeGroup(const QmlPattern& key) const
{
    return std::any_of(groups.begin(), groups.end(), [&](const auto& group) { return exists(group, key); });
}

bool UseCheck::hasSomeKey(const QmlPattern& group) const
{
    return std::any_of(keys.begin(), keys.end(), [&](const auto& key) { return exists(group, key); });
}

// Several texts were combined, of which some may never meet: one that exists excuses the others of its origin.
bool UseCheck::isExcused(const QmlPattern& key) const
{
    return key.isUncertain && std::any_of(keys.begin(), keys.end(), [&](const QmlPattern& other) {
               return other.place.line == key.place.line && other.place.column == key.place.column
                   && other.place.path == key.place.path && hasSomeGroup(other);
           });
}

void UseCheck::checkKey(const QmlPattern& group, const QmlPattern& key, const Report& report) const
{
    const QmlPattern name = use.name(group, key);
    if (exists(group, key) || isExcused(key))
        return;
    const QmlPattern& undefined = group.isUndefined ? group : key;
    if (undefined.isUndefined) {
        report(
            undefined.place,
            QStringLiteral("no object that is read here has this member, so the name of the %1 is undefined; correct "
                           "the name of the member")
                .arg(kindName(use.kind)));
        return;
    }
    const QString nearest = names.nearest(name);
    const QString advice = nearest.isNull() ? QStringLiteral("add it or correct the name")
                                            : QStringLiteral("did you mean \"%1\"?").arg(nearest);
    const bool isGroupWrong = hasGroupArgument(use.kind) && group.hasText()
        && (!key.hasText() || !names.contains(use.name(group, QmlPattern::anything())));
    const bool isEmpty = name.isLiteral() && (!key.hasText() || (hasGroupArgument(use.kind) && !group.hasText()));
    report(isGroupWrong ? group.place : key.place,
           isEmpty ? QStringLiteral("empty name of the %1; pass a name").arg(kindName(use.kind))
                   : QStringLiteral("unknown %1 \"%2\"; %3").arg(kindName(use.kind), name.text(), advice));
}

} // namespace ResourceCheck
