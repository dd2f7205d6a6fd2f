#include "ResourceCheck/Project.h"
#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/rules/LocaleName.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Language.h"

#include <QLocale>

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
    const Suggestions suggestions({known.begin(), known.end()});
    const QString advice = QStringLiteral("add it there or remove it here");
    for (const JsonValue& member : text.file.root().members) {
        if (!known.contains(member.name)) {
            report(member.namePlace,
                   QStringLiteral("the text \"%1\" does not exist in English; %2")
                       .arg(member.name, suggestions.advice(member.name, advice)));
        }
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
    };
}

} // namespace ResourceCheck
