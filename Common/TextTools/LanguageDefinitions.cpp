#include "Common/TextTools/LanguageDefinitions.h"

const QString& LanguageDefinitions::getSecondFallbackLanguageFilename()
{
    static const QString filename = QStringLiteral("en.json");
    return filename;
}
