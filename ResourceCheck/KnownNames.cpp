#include "ResourceCheck/KnownNames.h"

#include <QtAlgorithms>

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

} // namespace

KnownNames::KnownNames(const QStringList& names)
    : names(names)
    , wholeNames(candidatesOf(names))
    , nameSet(names.begin(), names.end())
{
    QStringList groupNames;
    for (const QString& name : names) {
        const int position = separatorIn(name);
        groupNames.append(name.left(position));
        namesByKey[name.mid(position + 1)].append(name);
    }
    groups = candidatesOf(groupNames);
    QStringList keyNames = namesByKey.keys();
    keyNames.sort();
    keys = candidatesOf(keyNames);
}

bool KnownNames::contains(const QmlPattern& pattern) const
{
    if (pattern.isLiteral())
        return nameSet.contains(pattern.pieces.first());
    const QString text = pattern.text();
    if (!answers.contains(text))
        answers.insert(text, isThere(pattern));
    return answers.value(text);
}

bool KnownNames::isThere(const QmlPattern& pattern) const
{
    const auto matches = [&pattern](const QString& name) { return pattern.matches(name); };
    const QString& end = pattern.pieces.last();
    if (!end.contains(separator))
        return std::any_of(names.begin(), names.end(), matches);
    const QStringList candidates = namesByKey.value(end.mid(separatorIn(end) + 1));
    return std::any_of(candidates.begin(), candidates.end(), matches);
}

quint64 KnownNames::lettersOf(const QString& name)
{
    quint64 letters = 0;
    for (const QChar letter : name)
        letters |= Q_UINT64_C(1) << (letter.unicode() % 64);
    return letters;
}

QVector<KnownNames::Candidate> KnownNames::candidatesOf(const QStringList& names)
{
    QVector<Candidate> candidates;
    QSet<QString> seen;
    for (const QString& name : names) {
        if (!seen.contains(name))
            candidates.append({name, lettersOf(name)});
        seen.insert(name);
    }
    return candidates;
}

QString KnownNames::nearestOf(const QVector<Candidate>& candidates, const QString& name)
{
    QString nearest;
    const quint64 letters = lettersOf(name);
    int limit = maximumDistance(name);
    for (const Candidate& candidate : candidates) {
        // Each letter that only one of both has is a difference, and this is seen at once.
        const auto missing = qPopulationCount(letters & ~candidate.letters);
        const auto added = qPopulationCount(candidate.letters & ~letters);
        if (static_cast<int>(std::max(missing, added)) > limit)
            continue;
        const int difference = distance(name, candidate.name, limit);
        if (difference <= limit) {
            nearest = candidate.name;
            limit = difference - 1;
        }
        if (limit < 1)
            break;
    }
    return nearest;
}

QString KnownNames::nearest(const QmlPattern& pattern) const
{
    const QString text = pattern.text();
    if (pattern.isLiteral())
        return nearestOf(wholeNames, text);
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
