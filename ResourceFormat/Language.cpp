#include "ResourceFormat/Language.h"

namespace
{

const QLatin1String fileSuffix(".json");

} // namespace

namespace ResourceFormat::Language
{

QString secondFallback()
{
    return QStringLiteral("en");
}

QStringList fallbackChain(const QString& language)
{
    QStringList languages{language, language.section(QLatin1Char('_'), 0, 0), secondFallback()};
    languages.removeDuplicates();
    return languages;
}

QString fileName(const QString& language)
{
    return language + fileSuffix;
}

QString ofFile(const QString& fileName)
{
    return fileName.endsWith(fileSuffix) ? fileName.chopped(fileSuffix.size()) : fileName;
}

} // namespace ResourceFormat::Language
