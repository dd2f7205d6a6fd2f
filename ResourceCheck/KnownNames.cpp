#include "ResourceCheck/KnownNames.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace
{

constexpr QLatin1Char separator('/');

int separatorIn(const QString& name)
{
    return name.lastIndexOf(separator);
}

// How many characters are to be changed, added, left out or swapped with the next; more than the limit if that is not
// enough.
int distance(const QString& left, const QString& right, int limit)
{
    if (std::abs(left.size() - right.size()) > limit)
        return limit + 1;
    std::vector<int> beforeLast;
    std::vector<int> last;
    std::vector<int> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    int lastBest = 0;
    for (int i = 1; i <= left.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row.assign(last.size(), i);
        for (int j = 1; j <= right.size(); ++j) {
            const bool isSame = left.at(i - 1) == right.at(j - 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && left.at(i - 1) == right.at(j - 2) && left.at(i - 2) == right.at(j - 1))
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        const int best = *std::min_element(row.begin(), row.end());
        if (std::min(best, lastBest) > limit)
            return limit + 1;
        lastBest = best;
    }
    return row.back();
}

// A third of the longest part: in `text://Room/Hall` most is the same as in any other text.
int maximumDistance(const QString& name)
{
    int longest = 0;
    for (const QString& part : name.split(separator))
        longest = std::max(longest, part.size());
    return longest / 3;
}

QString nearestOf(const QStringList& candidates, const QString& name)
{
    QString nearest;
    int limit = maximumDistance(name);
    for (const QString& candidate : candidates) {
        const int difference = distance(name, candidate, limit);
        if (difference <= limit) {
            nearest = candidate;
            limit = difference - 1;
        }
        if (limit < 1)
            break;
    }
    return nearest;
}

} // namespace

KnownNames::KnownNames(const QStringList& names)
    : names(names)
    , nameSet(names.begin(), names.end())
{
    for (const QString& name : names) {
        const int position = separatorIn(name);
        groups.append(name.left(position));
        keys.append(name.mid(position + 1));
        namesByKey[keys.last()].append(name);
    }
    groups.removeDuplicates();
    keys.removeDuplicates();
}

bool KnownNames::contains(const QmlPattern& pattern) const
{
    if (pattern.isLiteral())
        return nameSet.contains(pattern.pieces.first());
    const auto matches = [&pattern](const QString& name) { return pattern.matches(name); };
    const QString& end = pattern.pieces.last();
    if (!end.contains(separator))
        return std::any_of(names.begin(), names.end(), matches);
    const QStringList candidates = namesByKey.value(end.mid(separatorIn(end) + 1));
    return std::any_of(candidates.begin(), candidates.end(), matches);
}

QString KnownNames::nearest(const QmlPattern& pattern) const
{
    const QString text = pattern.text();
    if (pattern.isLiteral())
        return nearestOf(names, text);
    const QString group = text.left(separatorIn(text));
    const QString key = text.mid(separatorIn(text) + 1);
    const QString anything(QLatin1Char('*'));
    if (pattern.pieces.size() > 2 || (group != anything && key != anything))
        return {};
    const QString nearestPart = group == anything ? nearestOf(keys, key) : nearestOf(groups, group);
    if (nearestPart.isNull())
        return {};
    return group == anything ? anything + separator + nearestPart : nearestPart + separator + anything;
}
