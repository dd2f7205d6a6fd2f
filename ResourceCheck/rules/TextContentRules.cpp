#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace ResourceCheck
{

namespace
{

void forEachText(const Project& project, const std::function<void(const JsonValue& text)>& check)
{
    for (const TextFile& file : project.resources.texts) {
        for (const JsonValue& text : file.texts)
            check(text);
    }
}

// Whether a control that changes the direction of the text is not closed in its line.
bool isDirectionOpen(const QString& line)
{
    QString closing;
    for (const QChar character : line) {
        const ushort code = character.unicode();
        const bool isEmbedding = (code >= 0x202A && code <= 0x202E && code != 0x202C);
        if (isEmbedding || (code >= 0x2066 && code <= 0x2068))
            closing.append(QChar(isEmbedding ? 0x202C : 0x2069));
        else if (closing.endsWith(character))
            closing.chop(1);
    }
    return !closing.isEmpty();
}

void checkDirections(const Project& project, const Report& report)
{
    forEachText(project, [&report](const JsonValue& text) {
        const QStringList lines = text.text.split(QLatin1Char('\n'));
        if (std::any_of(lines.begin(), lines.end(), isDirectionOpen)) {
            report(text.place,
                   QStringLiteral("the text \"%1\" changes the writing direction and does not end that; add U+202C or "
                                  "U+2069")
                       .arg(text.name));
        }
    });
}

void checkBlanks(const Project& project, const Report& report)
{
    forEachText(project, [&report](const JsonValue& text) {
        const bool isBlank = text.text.trimmed().isEmpty();
        if (!isBlank && (text.text.front().isSpace() || text.text.back().isSpace())) {
            report(text.place, QStringLiteral("the text \"%1\" begins or ends with a blank; remove it").arg(text.name));
        }
    });
}

int lengthOf(const QString& text)
{
    int length = 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (finder.toNextBoundary() >= 0)
        ++length;
    return length;
}

void checkLengths(const Project& project, const Report& report)
{
    forEachText(project, [&](const JsonValue& text) {
        for (const auto& [group, maximum] : project.maximumLengths) {
            const int length = text.name.startsWith(group + QLatin1Char('/')) ? lengthOf(text.text) : 0;
            if (length > maximum) {
                report(text.place,
                       QStringLiteral("the text \"%1\" has %2 characters, more than %3; shorten it")
                           .arg(text.name, QString::number(length), QString::number(maximum)));
            }
        }
    });
}

} // namespace

QVector<Rule> textContentRules()
{
    return {
        {QStringLiteral("text-direction"), Severity::Error,
         QStringLiteral("What is shown after the text runs in the wrong direction."), checkDirections,
         QStringLiteral(
             "Close each U+202A, U+202B, U+202D and U+202E with U+202C, and each U+2066, U+2067 and U+2068 with "
             "U+2069, in the same line.")},
        {QStringLiteral("text-blank"), Severity::Warning,
         QStringLiteral("A blank at the beginning or end of a text shifts it out of line."), checkBlanks,
         QStringLiteral("Remove the blank. Set gaps between texts in QML.")},
        {QStringLiteral("text-too-long"), Severity::Warning,
         QStringLiteral("A text that is longer than its place is cut or elided."), checkLengths,
         QStringLiteral(
             "Shorten the text. The rule needs the option `max-length`, for example `max-length=text://Button=12` "
             "for the texts whose names begin with `text://Button/`.")},
    };
}

} // namespace ResourceCheck
