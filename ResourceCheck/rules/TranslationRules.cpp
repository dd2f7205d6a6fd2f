#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/LocaleName.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Language.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <optional>

namespace ResourceCheck
{

namespace Language = ResourceFormat::Language;

namespace
{

// Compares each text file with the English one, if that is sound.
Rule::Check forEachTranslation(void (*check)(const Resources& resources, const TextFile& text, const TextFile& english,
                                             const Report& report))
{
    return [check](const Project& project, const Report& report) {
        const TextFile* english = project.resources.soundText(Language::secondFallback());
        if (english == nullptr)
            return;
        for (const TextFile& text : project.resources.texts)
            check(project.resources, text, *english, report);
    };
}

bool isEnglish(const QString& language)
{
    return QLocale(language).language() == QLocale(Language::secondFallback()).language();
}

// The URLs that the language and its fallbacks before English offer; nothing if one of the files is not sound.
std::optional<QSet<QString>> urlsBeforeEnglish(const Resources& resources, const TextFile& text)
{
    QSet<QString> urls = text.urls();
    for (const QString& language : Language::fallbackChain(text.language)) {
        if (isEnglish(language))
            continue;
        const TextFile* fallback = resources.soundText(language);
        if (fallback == nullptr)
            return std::nullopt;
        urls += fallback->urls();
    }
    return urls;
}

void checkMissing(const Resources& resources, const TextFile& text, const TextFile& english, const Report& report)
{
    if (!isLocaleName(text.language) || isEnglish(text.language))
        return;
    std::optional<QSet<QString>> offered = urlsBeforeEnglish(resources, text);
    if (!offered)
        return;
    for (const JsonValue& member : english.texts) {
        if (offered->contains(member.name))
            continue;
        offered->insert(member.name);
        report(
            {text.file.path(), 1, 1},
            QStringLiteral("the text \"%1\" is missing; translate \"%2\"").arg(member.name, member.text.simplified()));
    }
}

void checkExtra(const Resources& /*resources*/, const TextFile& text, const TextFile& english, const Report& report)
{
    const QSet<QString> known = english.urls();
    for (const JsonValue& member : text.file.root().members) {
        if (!known.contains(member.name)) {
            report(member.namePlace,
                   QStringLiteral("the text \"%1\" does not exist in English; add it there or remove it here")
                       .arg(member.name));
        }
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
               QStringLiteral("the text \"%1\" %2; use the placeholders of the English text \"%3\"")
                   .arg(text.name, faults.join(QStringLiteral(" and ")), english.simplified()));
    }
}

void checkPlaceholders(const Resources& /*resources*/, const TextFile& text, const TextFile& english,
                       const Report& report)
{
    QHash<QString, QString> expected;
    for (const JsonValue& member : english.texts) // of duplicates either one can count
        expected.insert(member.name, expected.contains(member.name) ? QString() : member.text);
    for (const JsonValue& member : text.texts) {
        const QString englishText = expected.value(member.name);
        if (!englishText.isEmpty() && !member.text.isEmpty())
            comparePlaceholders(member, englishText, report);
    }
}

} // namespace

QVector<Rule> translationRules()
{
    return {
        {QStringLiteral("text-missing"), Severity::Warning,
         QStringLiteral("A text that neither the language nor its fallback language has is shown in English."),
         forEachTranslation(checkMissing), QStringLiteral("Translate the text in the file of the language.")},
        {QStringLiteral("text-extra"), Severity::Warning, QStringLiteral("Languages without the text show its URL."),
         forEachTranslation(checkExtra),
         QStringLiteral("Add the text to `en.json`, or remove it from the other files.")},
        {QStringLiteral("text-placeholder"), Severity::Error,
         QStringLiteral("The text is shown without a value, or with a placeholder in place of a value."),
         forEachTranslation(checkPlaceholders),
         QStringLiteral("Use the placeholders of the English text. Each can occur in any place and more than once, and "
                        "`%L1` is the same as `%1`.")},
    };
}

} // namespace ResourceCheck
