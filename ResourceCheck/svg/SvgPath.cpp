#include "ResourceCheck/svg/SvgPath.h"

#include <QHash>

namespace ResourceCheck
{

namespace
{

constexpr int maximumPoints = 0x7fff;
constexpr int longestNumber = 255;

// The numbers that one execution of the command needs; -1 for anything else.
int numbersOf(QChar command)
{
    static const QHash<QChar, int> numbers{{QLatin1Char('z'), 0}, {QLatin1Char('h'), 1}, {QLatin1Char('v'), 1},
                                           {QLatin1Char('m'), 2}, {QLatin1Char('l'), 2}, {QLatin1Char('t'), 2},
                                           {QLatin1Char('s'), 4}, {QLatin1Char('q'), 4}, {QLatin1Char('c'), 6},
                                           {QLatin1Char('a'), 7}};
    return numbers.value(command.toLower(), -1);
}

// The points that it adds to the path; an arc adds up to 4 curves.
int pointsOf(QChar command)
{
    if (command.toLower() == QLatin1Char('a'))
        return 4 * 3;
    return QLatin1String("sqct").contains(command.toLower()) ? 3 : 1;
}

class Scanner
{
public:
    explicit Scanner(QStringView data)
        : text(data)
    {
    }

    bool isAtEnd() const { return position >= text.size(); }
    QChar next() { return text.at(position++); }

    void skipBlanks()
    {
        while (current().isSpace())
            ++position;
    }

    // Counts the numbers up to the next command. The flags of an arc need no separators.
    int skipNumbers(bool isArc)
    {
        int count = 0;
        for (skipBlanks(); isDigit() || isAnyOf("+-."); ++count) {
            const bool isFlag = isArc && (count % 7 == 3 || count % 7 == 4);
            if (!isFlag)
                skipNumber();
            else if (isAnyOf("01"))
                ++position;
            else
                return count;
            skipBlanks();
            position += isAnyOf(",") ? 1 : 0;
            skipBlanks();
        }
        return count;
    }

private:
    QChar current() const { return isAtEnd() ? QChar() : text.at(position); }
    bool isDigit() const { return current() >= QLatin1Char('0') && current() <= QLatin1Char('9'); }
    bool isAnyOf(const char* characters) const { return !isAtEnd() && QLatin1String(characters).contains(current()); }

    bool skipOneOf(const char* characters)
    {
        const bool isFound = isAnyOf(characters) && position < numberEnd;
        position += isFound ? 1 : 0;
        return isFound;
    }

    void skipDigits()
    {
        while (isDigit() && position < numberEnd)
            ++position;
    }

    // Like Qt, which takes the rest of a longer number for the next one.
    void skipNumber()
    {
        numberEnd = position + longestNumber + (isAnyOf("+") ? 1 : 0);
        skipOneOf("+-");
        skipDigits();
        skipOneOf(".");
        skipDigits();
        if (skipOneOf("eE")) {
            skipOneOf("+-");
            skipDigits();
        }
    }

    QStringView text;
    int position = 0;
    int numberEnd = 0;
};

} // namespace

bool SvgPath::isComplete(QStringView data)
{
    Scanner scanner(data.trimmed());
    for (int points = 0; !scanner.isAtEnd() && points <= maximumPoints; scanner.skipBlanks()) {
        const QChar command = scanner.next();
        const int needed = numbersOf(command);
        const int given = scanner.skipNumbers(command.toLower() == QLatin1Char('a'));
        if (needed < 0 && given > 0)
            return false;
        if (needed > 0 && given % needed != 0)
            return false;
        points += needed > 0 ? given / needed * pointsOf(command) : 1;
        if (points > maximumPoints)
            return false;
    }
    return true;
}

} // namespace ResourceCheck
