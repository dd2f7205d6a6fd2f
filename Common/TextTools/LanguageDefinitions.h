#pragma once

#include <QString>

/// The platform's fallback languages.
class Q_DECL_EXPORT LanguageDefinitions
{
public:
    /// The file of the second fallback language, which has every text: "en.json".
    static const QString& getSecondFallbackLanguageFilename();
};
