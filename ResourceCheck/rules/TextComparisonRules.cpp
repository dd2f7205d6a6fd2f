#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Language.h"

#include <QHash>
#include <QRegularExpression>

namespace ResourceCheck
{

namespace
{

using Check = void (*)(const JsonValue& text, const QString& english, const Report& report);

// Compares each text with the English one, if that exists and there is only one.
Rule::Check forEachPair(Check check)
{
    return [check](const Project& project, const Report& report) {
        const TextFile* english = project.resources.soundText(ResourceFormat::Language::secondFallback());
        if (english == nullptr)
            return;
        QHash<QString, QString> expected;
        for (const JsonValue& member : english->texts) // of duplicates either one can count
            expected.insert(member.name, expected.contains(member.name) ? QString() : member.text);
        for (const TextFile& text : project.resources.texts) {
            for (const JsonValue& member : text.texts) {
                const QString englishText = expected.value(member.name);
                if (!englishText.trimmed().isEmpty() && !member.text.trimmed().isEmpty())
                    check(member, englishText, report);
            }
        }
    };
}

QStringList matchesOf(const QRegularExpression& pattern, const QString& text)
{
    QStringList captured;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        captured.append(matches.next().captured());
    return captured;
}

// `%L1` is the same argument as `%1`, and each argument can occur several times.
QStringList placeholdersOf(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("%L?[1-9][0-9]?(\\$[a-z])?|%L?n|\\{[A-Za-z_][A-Za-z0-9_.]*\\}|%[sdifu](?![A-Za-z])"));
    QStringList placeholders = matchesOf(pattern, text);
    placeholders.replaceInStrings(QStringLiteral("%L"), QStringLiteral("%"));
    placeholders.removeDuplicates();
    return placeholders;
}

// The names of the tags, in order, because they can move with the words.
QStringList tagsOf(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("</?[A-Za-z][A-Za-z0-9]*(?=[\\s/>][^<]*>|>)"));
    QStringList tags = matchesOf(pattern, text);
    tags.sort();
    return tags;
}

// What of the English text is missing, and what the text has in addition; empty if nothing differs.
QString difference(QStringList actual, const QStringList& expected)
{
    QStringList missing;
    for (const QString& one : expected) {
        if (!actual.removeOne(one))
            missing.append(one);
    }
    const QString separator = QStringLiteral(", ");
    QStringList faults;
    if (!missing.isEmpty())
        faults.append(QStringLiteral("lacks ") + missing.join(separator));
    if (!actual.isEmpty())
        faults.append(QStringLiteral("has ") + actual.join(separator) + QStringLiteral(" in addition"));
    return faults.join(QStringLiteral(" and "));
}

void checkPlaceholders(const JsonValue& text, const QString& english, const Report& report)
{
    const QString fault = difference(placeholdersOf(text.text), placeholdersOf(english));
    if (!fault.isEmpty()) {
        report(text.place,
               QStringLiteral("the text \"%1\" %2; use the placeholders of the English text \"%3\"")
                   .arg(text.name, fault, english.simplified()));
    }
}

void checkMarkup(const JsonValue& text, const QString& english, const Report& report)
{
    const QString fault = difference(tagsOf(text.text), tagsOf(english));
    if (!fault.isEmpty()) {
        report(text.place,
               QStringLiteral("the text \"%1\" %2; use the tags of the English text \"%3\"")
                   .arg(text.name,
                        QString(fault).replace(QRegularExpression(QStringLiteral("(</?\\w+)")), QStringLiteral("\\1>")),
                        english.simplified()));
    }
}

void checkLineBreaks(const JsonValue& text, const QString& english, const Report& report)
{
    const int lines = text.text.count(QLatin1Char('\n')) + 1;
    const int englishLines = english.count(QLatin1Char('\n')) + 1;
    if (lines < englishLines) {
        report(text.place,
               QStringLiteral("the text \"%1\" has fewer lines than in English, %2 instead of %3; add \\n")
                   .arg(text.name, QString::number(lines), QString::number(englishLines)));
    }
}

} // namespace

QVector<Rule> textComparisonRules()
{
    return {
        {QStringLiteral("text-placeholder"), Severity::Error,
         QStringLiteral("The text is shown without a value, or with a placeholder in place of a value."),
         forEachPair(checkPlaceholders),
         QStringLiteral("Use the placeholders of the English text: `%1`, `%n`, `{name}` or `%s`. Each can occur in any "
                        "place and more than once, and `%L1` is the same as `%1`.")},
        {QStringLiteral("text-markup"), Severity::Warning,
         QStringLiteral("A part of the text has another style than in English, or a tag is shown as text."),
         forEachPair(checkMarkup),
         QStringLiteral("Use the tags of the English text, such as `<b>` and `</b>`. Their order can differ.")},
        {QStringLiteral("text-line-break"), Severity::Warning,
         QStringLiteral("Lines that are separate in English run into each other."), forEachPair(checkLineBreaks),
         QStringLiteral("Add the missing `\\n`.")},
    };
}

} // namespace ResourceCheck
