#include "Common/TextTools/LanguageDefinitions.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceCheck/rules/JsonFaults.h"

#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

namespace
{

template <void (*check)(const Project& project, const TextFile& text, const Report& report)>
void forEachText(const Project& project, const Report& report)
{
    for (const TextFile& text : project.resources.texts)
        check(project, text, report);
}

const TextFile* soundText(const Project& project, const QString& filename)
{
    for (const TextFile& text : project.resources.texts) {
        if (QFileInfo(text.file.path()).fileName() == filename && text.file.isSound())
            return &text;
    }
    return nullptr;
}

const TextFile* englishText(const Project& project)
{
    return soundText(project, LanguageDefinitions::getSecondFallbackLanguageFilename());
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

void checkJson(const Project&, const TextFile& text, const Report& report)
{
    reportFault(text.file, report);
    reportOtherTypes(text.file.root(), JsonValue::Type::String, QStringLiteral("text of"), report);
}

void checkDuplicates(const Project&, const TextFile& text, const Report& report)
{
    reportDuplicates(text.file.root(), QStringLiteral("URL"), report);
}

void checkMissing(const Project& project, const TextFile& text, const Report& report)
{
    const QString base = text.language.section(QLatin1Char('_'), 0, 0);
    const TextFile* fallback = soundText(project, base + QStringLiteral(".json"));
    const TextFile* english = englishText(project);
    if (!english || !fallback || !text.file.isSound() || !isLocale(text.language))
        return;
    QSet<QString> offered = urlsOf(text) + urlsOf(*fallback);
    for (const JsonValue& member : english->texts) {
        if (offered.contains(member.name))
            continue;
        offered.insert(member.name);
        report({text.file.path(), 1, 1},
               QStringLiteral("no text for \"%1\", in English \"%2\"").arg(member.name, member.text.simplified()));
    }
}

void checkExtra(const Project& project, const TextFile& text, const Report& report)
{
    const TextFile* english = englishText(project);
    if (!english)
        return;
    const QSet<QString> known = urlsOf(*english);
    for (const JsonValue& member : text.file.root().members) {
        if (!known.contains(member.name))
            report(member.namePlace, QStringLiteral("\"%1\" has no text in English").arg(member.name));
    }
}

QStringList placeholdersOf(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("%(L?[1-9][0-9]?|n)"));
    QStringList placeholders;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        placeholders.append(matches.next().captured());
    return placeholders;
}

void comparePlaceholders(const JsonValue& text, const QString& english, const Report& report)
{
    QStringList extra = placeholdersOf(text.text);
    QStringList missing;
    for (const QString& placeholder : placeholdersOf(english)) {
        if (!extra.removeOne(placeholder))
            missing.append(placeholder);
    }
    const QString separator = QStringLiteral(", ");
    QStringList faults;
    if (!missing.isEmpty())
        faults.append(QStringLiteral("lacks ") + missing.join(separator));
    if (!extra.isEmpty())
        faults.append(QStringLiteral("has too many of ") + extra.join(separator));
    if (!faults.isEmpty()) {
        report(text.place,
               QStringLiteral("the text of \"%1\" %2; in English it is \"%3\"")
                   .arg(text.name, faults.join(QStringLiteral(" and ")), english.simplified()));
    }
}

void checkPlaceholders(const Project& project, const TextFile& text, const Report& report)
{
    const TextFile* english = englishText(project);
    if (!english)
        return;
    QHash<QString, QString> expected;
    for (const JsonValue& member : english->texts) // which of two under one URL counts is open
        expected.insert(member.name, expected.contains(member.name) ? QString() : member.text);
    for (const JsonValue& member : text.texts) {
        const QString englishText = expected.value(member.name);
        if (!englishText.isEmpty() && !member.text.isEmpty())
            comparePlaceholders(member, englishText, report);
    }
}

void checkEmpty(const Project&, const TextFile& text, const Report& report)
{
    for (const JsonValue& member : text.texts) {
        if (member.text.isEmpty())
            report(member.place, QStringLiteral("the text of \"%1\" is empty").arg(member.name));
    }
}

void checkName(const Project&, const TextFile& text, const Report& report)
{
    const QString path = text.file.path();
    if (!path.endsWith(QLatin1String(".json")))
        report({path}, QStringLiteral("does not end in .json, in small letters"));
    if (!isLocale(text.language))
        report({path}, QStringLiteral("\"%1\" is no locale, as de or de_AT is").arg(text.language));
}

} // namespace

QVector<Rule> textRules()
{
    return {
        {QStringLiteral("text-json"), Severity::Error,
         QStringLiteral("A device leaves out what is not of this form, and warns of it in the log."),
         forEachText<checkJson>},
        {QStringLiteral("text-duplicate"), Severity::Error,
         QStringLiteral("Of several texts under one URL a device keeps one, not always the last."),
         forEachText<checkDuplicates>},
        {QStringLiteral("text-missing"), Severity::Warning,
         QStringLiteral("What a language and those it falls back to lack is shown in English."),
         forEachText<checkMissing>},
        {QStringLiteral("text-extra"), Severity::Warning,
         QStringLiteral("Languages without the text show its URL instead."), forEachText<checkExtra>},
        {QStringLiteral("text-placeholder"), Severity::Error,
         QStringLiteral("A value is not shown, or its placeholder is."), forEachText<checkPlaceholders>},
        {QStringLiteral("text-empty"), Severity::Warning,
         QStringLiteral("An empty text is shown as it is, without falling back."), forEachText<checkEmpty>},
        {QStringLiteral("text-language-name"), Severity::Error,
         QStringLiteral("A device opens LANGUAGE.json, by the name of the locale, and no other file."),
         forEachText<checkName>},
    };
}
