#include "Common/TextTools/LanguageDefinitions.h"

#include "ResourceFormat/Language.h"

const QString& LanguageDefinitions::getSecondFallbackLanguageFilename()
{
    static const QString filename = ResourceFormat::Language::fileName(ResourceFormat::Language::secondFallback());
    return filename;
}
