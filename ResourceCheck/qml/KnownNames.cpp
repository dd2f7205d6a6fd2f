#include "ResourceCheck/qml/KnownNames.h"

#include <QVarLengthArray>
#include <QtAlgorithms>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <numeric>

namespace ResourceCheck
{

namespace
{

// The number of characters to change, add, remove or swap with the next one; more than the limit if the limit is not
// enough.
int distance(const QString& left, const QString& right, int limit)
{
    if (std::abs(left.size() - right.size()) > limit)
        return limit + 1;
    using Row = QVarLengthArray<int, 64>;
    Row beforeLast(right.size() + 1);
    Row last(right.size() + 1);
    Row row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    int lastBest = 0;
    for (int i = 1; i <= left.size(); ++i) {
        std::copy(last.begin(), last.end(), beforeLast.begin());
        std::copy(row.begin(), row.end(), last.begin());
        int best = row[0] = i;
        for (int j = 1; j <= right.size(); ++j) {
            const bool isSame = left.at(i - 1) == right.at(j - 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && left.at(i - 1) == right.at(j - 2) && left.at(i - 2) == right.at(j - 1))
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            best = std::min(best, row[j]);
        }
        if (std::min(best, lastBest) > limit)
            return limit + 1;
        lastBest = best;
    }
    return row[right.size()];
}

quint64 lettersOf(const QString& name)
{
    quint64 letters = 0;
    for (const QChar letter : name)
        letters |= Q_UINT64_C(1) << (letter.unicode() % 64);
    return letters;
}

// A third of the longest part, because most of `text://Room/Hall` is the same in many other names.
int maximumDistance(const QString& name)
{
    int longest = 0;
    for (const QString& part : name.split(QLatin1Char('/')))
        longest = std::max(longest, static_cast<int>(part.size()));
    return longest / 3;
}

} // namespace

KnownNames::KnownNames(const QStringList& existingNames)
    : names(existingNames)
    , candidates(existingNames)
{
    for (const QString& name : names)
        candidates.append(QLatin1Char('*') + name.mid(name.lastIndexOf(QLatin1Char('/'))));
    for (const QString& name : names)
        candidates.append(name.left(name.lastIndexOf(QLatin1Char('/')) + 1) + QLatin1Char('*'));
    candidates.removeDuplicates();
    std::transform(candidates.begin(), candidates.end(), std::back_inserter(letters), lettersOf);
    candidateSet = QSet<QString>(candidates.begin(), candidates.end());
}

bool KnownNames::contains(const QmlPattern& pattern) const
{
    return candidateSet.contains(pattern.text())
        || (!pattern.isLiteral() && std::any_of(names.begin(), names.end(), [&pattern](const QString& name) {
               return pattern.matches(name);
           }));
}

QString KnownNames::nearest(const QmlPattern& pattern) const
{
    const QString text = pattern.text();
    QString result;
    const quint64 ownLetters = lettersOf(text);
    int limit = maximumDistance(text);
    for (int index = 0; index < candidates.size() && limit > 0; ++index) {
        // Each letter that the candidate lacks is a difference: this skips most candidates quickly.
        if (static_cast<int>(qPopulationCount(ownLetters & ~letters.at(index))) > limit)
            continue;
        const int difference = distance(text, candidates.at(index), limit);
        if (difference <= limit) {
            result = candidates.at(index);
            limit = difference - 1;
        }
    }
    return result;
}

} // namespace ResourceCheck
