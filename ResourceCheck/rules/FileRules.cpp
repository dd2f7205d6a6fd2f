#include "Common/TextTools/LanguageDefinitions.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QFileInfo>

namespace
{

void checkReadable(const Project& project, const Report& report)
{
    const Resources& resources = project.resources;
    const auto checkFile = [&report](const auto& file) {
        if (!file.problem().isNull())
            report({file.path()}, QStringLiteral("cannot be read: %1").arg(file.problem()));
    };
    checkFile(resources.colors);
    checkFile(resources.fonts);
    for (const DimensionFile& dimension : resources.dimensions)
        checkFile(dimension.file);
    for (const IconTable& table : resources.iconTables)
        checkFile(table.file);
    for (const TextFile& text : resources.texts)
        checkFile(text.file);
    if (resources.dimensions.isEmpty())
        report({resources.directory + QStringLiteral("/dimensions")}, QStringLiteral("holds no WIDTHxHEIGHT.ini"));
}

// The languages that a lookup in another one falls back to.
void checkFallbacks(const Project& project, const Report& report)
{
    QStringList listed;
    QStringList needed(LanguageDefinitions::getSecondFallbackLanguageFilename());
    for (const TextFile& text : project.resources.texts) {
        listed.append(QFileInfo(text.file.path()).fileName());
        if (text.language.contains(QLatin1Char('_')))
            needed.append(text.language.section(QLatin1Char('_'), 0, 0) + QStringLiteral(".json"));
    }
    needed.removeDuplicates();
    for (const QString& filename : qAsConst(needed)) {
        if (!listed.contains(filename)) {
            report({project.resources.directory + QStringLiteral("/texts/") + filename},
                   QStringLiteral("is missing, though other languages fall back to it"));
        }
    }
}

} // namespace

QVector<Rule> fileRules()
{
    return {
        {QStringLiteral("file-unreadable"), Severity::Error,
         QStringLiteral("A file that cannot be read has nothing to answer with."), checkReadable},
        {QStringLiteral("text-no-fallback"), Severity::Error,
         QStringLiteral("A text that a language lacks is looked for in the languages it falls back to."),
         checkFallbacks},
    };
}
