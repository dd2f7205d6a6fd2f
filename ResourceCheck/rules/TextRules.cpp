#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/JsonFaults.h"
#include "ResourceCheck/rules/LocaleName.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Language.h"

#include <QFileInfo>

namespace ResourceCheck
{

namespace
{

Rule::Check forEachText(void (*check)(const TextFile& text, const Report& report))
{
    return [check](const Project& project, const Report& report) {
        for (const TextFile& text : project.resources.texts)
            check(text, report);
    };
}

void checkJson(const TextFile& text, const Report& report)
{
    reportTextFaults(text.file, report);
}

void checkDuplicates(const TextFile& text, const Report& report)
{
    reportDuplicates(text.file.root(), QStringLiteral("URL"), report);
}

void checkEmpty(const TextFile& text, const Report& report)
{
    for (const JsonValue& member : text.texts) {
        if (member.text.trimmed().isEmpty())
            report(member.place,
                   QStringLiteral("the text \"%1\" is empty or blank; enter a text or remove it").arg(member.name));
    }
}

void checkContent(const TextFile& text, const Report& report)
{
    if (text.language == ResourceFormat::Language::secondFallback() && text.file.isSound() && text.urls().isEmpty())
        report({text.file.path()}, QStringLiteral("the file contains no texts; add the texts of the front end"));
}

void checkName(const TextFile& text, const Report& report)
{
    const QString path = text.file.path();
    const QString fileName = ResourceFormat::Language::fileName(text.language);
    if (QFileInfo(path).fileName() != fileName)
        report({path}, QStringLiteral("the suffix is not in lower case; rename the file to %1").arg(fileName));
    if (!isLocaleName(text.language)) {
        report({path},
               QStringLiteral("\"%1\" is not a locale name; rename the file to one such as de or de_AT")
                   .arg(text.language));
    }
}

} // namespace

QVector<Rule> textRules()
{
    return {
        {QStringLiteral("text-json"), Severity::Error,
         QStringLiteral("A device skips everything that does not have the expected form and logs a warning."),
         forEachText(checkJson),
         QStringLiteral("A language file is a JSON object of strings: `\"text://Button/Ok\": \"OK\"`.")},
        {QStringLiteral("text-duplicate"), Severity::Error,
         QStringLiteral("A device keeps only one of several texts with the same URL, not always the last."),
         forEachText(checkDuplicates), QStringLiteral("Rename or remove one of the texts.")},
        {QStringLiteral("text-empty"), Severity::Warning,
         QStringLiteral("An empty text is shown as it is, without fallback to another language."),
         forEachText(checkEmpty),
         QStringLiteral("Enter a text, or remove the line so that the fallback language is used.")},
        {QStringLiteral("text-none"), Severity::Error,
         QStringLiteral("The texts of English are those that QML can look up: without them there are none."),
         forEachText(checkContent), QStringLiteral("Add the texts of the front end to `en.json`.")},
        {QStringLiteral("text-language-name"), Severity::Error,
         QStringLiteral("A device opens only the files that are named LANGUAGE.json, with the name of a locale."),
         forEachText(checkName),
         QStringLiteral("Name the file after a locale, for example `de.json`, `de_AT.json` or `zh_Hans.json`.")},
    };
}

} // namespace ResourceCheck
