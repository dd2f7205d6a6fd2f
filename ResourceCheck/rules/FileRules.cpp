#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Language.h"

#include <QFileInfo>

namespace ResourceCheck
{

namespace
{

void checkReadable(const Project& project, const Report& report)
{
    const Resources& resources = project.resources;
    const auto checkFile = [&report](const auto& file) {
        if (!file.problem().isNull()) {
            report({file.path()},
                   QStringLiteral("the file cannot be read: %1; add it or make it readable").arg(file.problem()));
        }
    };
    checkFile(resources.colors);
    checkFile(resources.fonts);
    for (const DimensionFile& dimension : resources.dimensions)
        checkFile(dimension.file);
    for (const IconTable& table : resources.iconTables)
        checkFile(table.file);
    for (const TextFile& text : resources.texts)
        checkFile(text.file);
    if (resources.dimensions.isEmpty()) {
        report({resources.directory.dimensionFolder()},
               QStringLiteral("there is no dimension file; add one for each display size, named WIDTHxHEIGHT.ini"));
    }
}

void checkFallbacks(const Project& project, const Report& report)
{
    using namespace ResourceFormat;
    QStringList existing;
    QStringList needed(Language::fileName(Language::secondFallback()));
    for (const TextFile& text : project.resources.texts) {
        existing.append(QFileInfo(text.file.path()).fileName());
        for (const QString& fallback : Language::fallbackChain(text.language).mid(1))
            needed.append(Language::fileName(fallback));
    }
    needed.removeDuplicates();
    for (const QString& fileName : qAsConst(needed)) {
        if (!existing.contains(fileName)) {
            report({project.resources.directory.textFolder() + QLatin1Char('/') + fileName},
                   QStringLiteral("the file is missing, but other languages fall back to it; add it"));
        }
    }
}

} // namespace

QVector<Rule> fileRules()
{
    return {
        {QStringLiteral("file-unreadable"), Severity::Error,
         QStringLiteral("Every lookup in a file that cannot be read fails."), checkReadable,
         QStringLiteral(
             "Add the file, or make it a regular file that everybody may read. A directory needs `colors.ini`, "
             "`fonts.ini`, `icons/mapping.json` and one file for each display in `dimensions/`.")},
        {QStringLiteral("text-no-fallback"), Severity::Error,
         QStringLiteral("A text that is missing in one language is looked up in its fallback languages."),
         checkFallbacks,
         QStringLiteral(
             "Add the file, even with few texts: `pt_BR.json` needs `pt.json`, and every directory needs `en.json`.")},
    };
}

} // namespace ResourceCheck
