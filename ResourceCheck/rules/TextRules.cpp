#include "Common/TextTools/LanguageDefinitions.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/Rule.h"
#include "ResourceCheck/rules/JsonFaults.h"

#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <optional>

namespace
{

const TextFile* soundFile(const Project& project, const QString& filename)
{
    for (const TextFile& text : project.resources.texts) {
        if (QFileInfo(text.file.path()).fileName() == filename)
            return text.file.problem().isNull() && text.file.fault().isNull() ? &text : nullptr;
    }
    return nullptr;
}

const TextFile* reference(const Project& project)
{
    return soundFile(project, LanguageDefinitions::getSecondFallbackLanguageFilename());
}

// With those whose text is of the wrong type.
QSet<QString> urlsOf(const TextFile& text)
{
    QSet<QString> urls;
    for (const JsonValue& member : text.file.root().members)
        urls.insert(member.name);
    return urls;
}

// A script is taken as it is: Qt does not tell the codes of those it knows.
bool isLocale(const QString& name)
{
    static const QRegularExpression script(QStringLiteral("(?<=[a-z])_[A-Z][a-z]{3}(?=_)"));
    const QLocale locale(name);
    const QString known = locale.name();
    const bool isLanguage = known.section(QLatin1Char('_'), 0, 0) == name;
    return locale.language() != QLocale::C && (isLanguage || known == QString(name).remove(script));
}

void checkJson(const Project& project, const Report& report)
{
    for (const TextFile& text : project.resources.texts) {
        reportFault(text.file, report);
        for (const JsonValue& member : text.file.root().members) {
            if (member.type != JsonValue::Type::String)
                report(member.place, QStringLiteral("the text of \"%1\" is no string").arg(member.name));
        }
    }
}

void checkDuplicates(const Project& project, const Report& report)
{
    for (const TextFile& text : project.resources.texts)
        reportDuplicates(text.file.root(), QStringLiteral("URL"), report);
}

// What the language and its own fall-backs offer; nothing when one of them cannot tell.
std::optional<QSet<QString>> offeredUrls(const Project& project, const QString& language)
{
    QSet<QString> urls;
    for (const QString& name : {language, language.section(QLatin1Char('_'), 0, 0)}) {
        const TextFile* text = soundFile(project, name + QStringLiteral(".json"));
        if (!text)
            return std::nullopt;
        urls.unite(urlsOf(*text));
    }
    return urls;
}

void checkMissing(const Project& project, const Report& report)
{
    const TextFile* english = reference(project);
    for (const TextFile& text : project.resources.texts) {
        std::optional<QSet<QString>> offered = offeredUrls(project, text.language);
        if (!english || !offered || !isLocale(text.language))
            continue;
        for (const JsonValue& member : english->texts) {
            if (!offered->contains(member.name)) {
                offered->insert(member.name);
                report(
                    {text.file.path(), 1, 1},
                    QStringLiteral("no text for \"%1\", in English \"%2\"").arg(member.name, member.text.simplified()));
            }
        }
    }
}

void checkExtra(const Project& project, const Report& report)
{
    const TextFile* english = reference(project);
    if (!english)
        return;
    const QSet<QString> known = urlsOf(*english);
    for (const TextFile& text : project.resources.texts) {
        for (const JsonValue& member : text.file.root().members) {
            if (!known.contains(member.name))
                report(member.namePlace, QStringLiteral("\"%1\" has no text in English").arg(member.name));
        }
    }
}

QStringList placeholdersOf(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("%(L?[1-9][0-9]?|n)"));
    QStringList placeholders;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        placeholders.append(matches.next().captured());
    std::sort(placeholders.begin(), placeholders.end());
    return placeholders;
}

// Of two sorted lists.
QString difference(const QStringList& left, const QStringList& right)
{
    QStringList result;
    std::set_difference(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(result));
    return result.join(QStringLiteral(", "));
}

void comparePlaceholders(const JsonValue& text, const QString& english, const Report& report)
{
    const QStringList expected = placeholdersOf(english);
    const QStringList found = placeholdersOf(text.text);
    QStringList faults;
    const QString missing = difference(expected, found);
    if (!missing.isEmpty())
        faults.append(QStringLiteral("lacks %1").arg(missing));
    const QString extra = difference(found, expected);
    if (!extra.isEmpty())
        faults.append(QStringLiteral("has %1 too many").arg(extra));
    if (!faults.isEmpty()) {
        report(text.place,
               QStringLiteral("the text of \"%1\" %2, in English \"%3\"")
                   .arg(text.name, faults.join(QStringLiteral(" and ")), english.simplified()));
    }
}

void checkPlaceholders(const Project& project, const Report& report)
{
    const TextFile* english = reference(project);
    if (!english)
        return;
    QHash<QString, QString> englishTexts;
    for (const JsonValue& text : english->texts) // which of two under one URL counts is open
        englishTexts.insert(text.name, englishTexts.contains(text.name) ? QString() : text.text);
    for (const TextFile& text : project.resources.texts) {
        for (const JsonValue& member : text.texts) {
            const QString expected = englishTexts.value(member.name);
            if (!expected.isEmpty() && !member.text.isEmpty())
                comparePlaceholders(member, expected, report);
        }
    }
}

void checkEmpty(const Project& project, const Report& report)
{
    for (const TextFile& text : project.resources.texts) {
        for (const JsonValue& member : text.texts) {
            if (member.text.isEmpty())
                report(member.place, QStringLiteral("the text of \"%1\" is empty").arg(member.name));
        }
    }
}

void checkNames(const Project& project, const Report& report)
{
    for (const TextFile& text : project.resources.texts) {
        const QFileInfo file(text.file.path());
        if (file.suffix() != QLatin1String("json"))
            report({file.filePath()}, QStringLiteral("does not end in .json, in small letters"));
        if (!isLocale(text.language)) {
            report({file.filePath()},
                   QStringLiteral("\"%1\" is no name of a locale, such as \"de\" or \"de_AT\"").arg(text.language));
        }
    }
}

} // namespace

QVector<Rule> textRules()
{
    return {
        {QStringLiteral("text-json"), Severity::Error,
         QStringLiteral("A file that is no JSON object gives no text at all, and a text that is no string is left out; "
                        "both are warned of in the log."),
         checkJson},
        {QStringLiteral("text-duplicate"), Severity::Error,
         QStringLiteral("Of several texts under one URL a device keeps one, not always the last."), checkDuplicates},
        {QStringLiteral("text-missing"), Severity::Warning,
         QStringLiteral("A text that a language and those it falls back to lack is shown in English."), checkMissing},
        {QStringLiteral("text-extra"), Severity::Warning,
         QStringLiteral("A URL that English lacks is shown itself, instead of a text, in the languages that lack it "
                        "too."),
         checkExtra},
        {QStringLiteral("text-placeholder"), Severity::Error,
         QStringLiteral("A placeholder that a translation lacks loses its value, and one that it has too many is shown "
                        "as it is written."),
         checkPlaceholders},
        {QStringLiteral("text-empty"), Severity::Warning,
         QStringLiteral("An empty text leaves its place on the screen empty, without falling back."), checkEmpty},
        {QStringLiteral("text-language-name"), Severity::Error,
         QStringLiteral("A device opens LANGUAGE.json, by the name of its locale, and no other file."), checkNames},
    };
}
