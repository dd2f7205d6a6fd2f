#pragma once

#include <QRandomGenerator>
#include <QRegularExpression>

namespace Tests
{

/// Damages the content of files. The same state of the generator gives the same damages.
class ContentDamage
{
public:
    explicit ContentDamage(QRandomGenerator& generator)
        : random(generator)
    {
    }

    QByteArray applied(const QByteArray& content)
    {
        static constexpr QByteArray (ContentDamage::*kinds[])(const QByteArray&){
            &ContentDamage::truncated,     &ContentDamage::withFlippedBits, &ContentDamage::withMovedBlock,
            &ContentDamage::withLostBytes, &ContentDamage::withExtraToken,  &ContentDamage::withOtherCase,
            &ContentDamage::withWrongType, &ContentDamage::withHugeNumber,  &ContentDamage::nested,
            &ContentDamage::encoded,       &ContentDamage::repeated};
        return (this->*kinds[random.bounded(static_cast<int>(std::size(kinds)))])(content);
    }

    template <typename List>
    auto oneOf(const List& list)
    {
        return list.at(random.bounded(static_cast<int>(list.size())));
    }

private:
    int positionIn(const QByteArray& content) { return random.bounded(static_cast<int>(content.size()) + 1); }

    QByteArray truncated(const QByteArray& content) { return content.left(positionIn(content)); }

    QByteArray withFlippedBits(const QByteArray& original)
    {
        QByteArray content = original;
        for (int count = content.isEmpty() ? 0 : random.bounded(1, 9); count > 0; --count) {
            const int position = random.bounded(content.size());
            content[position] = static_cast<char>(content.at(position) ^ (1 << random.bounded(8)));
        }
        return content;
    }

    QByteArray withMovedBlock(const QByteArray& original)
    {
        QByteArray content = original;
        const int position = positionIn(content);
        const QByteArray block = content.mid(position, random.bounded(1, 200));
        content.remove(position, block.size());
        return content.insert(positionIn(content), block);
    }

    QByteArray withLostBytes(const QByteArray& content)
    {
        const int position = positionIn(content);
        return QByteArray(content).remove(position, random.bounded(1, 9));
    }

    // A line once more, or a token that means something in one of the formats.
    QByteArray withExtraToken(const QByteArray& original)
    {
        QByteArray content = original;
        static const QByteArrayList tokens{"[",    "]",   "=",     "\"",      "{",   "}",     ":",  ",",  "\n",
                                           "\xff", "\\",  "null",  "7",       "../", "<",     ">",  "/>", "&",
                                           "&x;",  "[ ]", "\"a\"", "Family=", "a=1", "[Day]", "%1", ";",  "url(#a)"};
        const int position = positionIn(content);
        const int line = content.indexOf('\n', position) + 1;
        const QByteArray copy = content.mid(line, content.indexOf('\n', line) - line + 1);
        return random.bounded(4) == 0 ? content.insert(line, copy) : content.insert(position, oneOf(tokens));
    }

    QByteArray withOtherCase(const QByteArray& original)
    {
        QByteArray content = original;
        const int position = positionIn(content);
        return content.replace(position, 1, content.mid(position, 1).toUpper());
    }

    // Replaces what the pattern finds at one place.
    QByteArray replaced(QByteArray content, const char* pattern, const QByteArrayList& tokens)
    {
        const QString text = QString::fromLatin1(content);
        QVector<QRegularExpressionMatch> places;
        for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();)
            places.append(match.next());
        if (places.isEmpty())
            return content;
        const QRegularExpressionMatch place = oneOf(places);
        return content.replace(place.capturedStart(), place.capturedLength(), oneOf(tokens));
    }

    // Replaces a value of a JSON object, an attribute or the value of an INI entry.
    QByteArray withWrongType(const QByteArray& content)
    {
        static const QByteArrayList values{"null", "7", "true", "[]", "{}", "{\"a\": {}}", "[\"x\"]", "\"\"", "", "px"};
        return replaced(content, "(?<=: )(?:\"[^\"\n]*\"|\\{[^{}]*\\})|(?<==)(?:\"[^\"\n]*\"|[^\n]+)", values);
    }

    QByteArray withHugeNumber(const QByteArray& content)
    {
        static const QByteArrayList numbers{
            "99999999999999999999", "1e999", "-1", "0", "nan", "inf", "2147483648", "1e-320", "0x10",
            QByteArray(5000, '9')};
        return replaced(content, "\\d+(\\.\\d+)?", numbers);
    }

    QByteArray nested(const QByteArray& original)
    {
        QByteArray content = original;
        static const QVector<QByteArrayList> brackets{{"[", "]"}, {"{\"a\":", "}"}, {"<g>", "</g>"}, {"(", ")"},
                                                      {"[", ""},  {"<g>", ""},      {"<defs>", ""}};
        static const QVector<int> depths{10, 500, 1024, 1025, 3000, 30000};
        const QByteArrayList pair = oneOf(brackets);
        const int depth = oneOf(depths);
        const int place =
            qMax(0, static_cast<int>(content.indexOf(pair.at(0) == "<g>" ? "<path" : ": ", positionIn(content))));
        return content.insert(place, pair.at(0).repeated(depth) + "1" + pair.at(1).repeated(depth));
    }

    QByteArray encoded(const QByteArray& original)
    {
        QByteArray content = original;
        static const QByteArrayList strange{
            "\xef\xbb\xbf", "\xc3\x28",         "\xed\xa0\x80", QByteArray(1, '\0'), QString(QChar(0x202e)).toUtf8(),
            "\xe2\x80\xa8", "\xf4\x90\x80\x80", "\xef\xbf\xbf"};
        const QString text = QString::fromUtf8(content);
        switch (random.bounded(6)) {
        case 0:
            return "\xff\xfe" + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
        case 1:
            return text.toLatin1();
        case 2:
            return strange.at(0) + content;
        case 3:
            return content.replace("\n", random.bounded(2) == 0 ? "\r\n" : "\r");
        }
        const int position = positionIn(content);
        return content.insert(position, oneOf(strange));
    }

    // At most 64 KiB: the findings in more take minutes with sanitizers.
    QByteArray repeated(const QByteArray& content)
    {
        static const QVector<int> counts{2, 20, 1000};
        return content.repeated(qMin(oneOf(counts), (1 << 16) / qMax(1, static_cast<int>(content.size())) + 1));
    }

    QRandomGenerator& random;
};

} // namespace Tests
