#pragma once

#include <QString>

/// The languages that the platform falls back to.
class Q_DECL_EXPORT LanguageDefinitions
{
public:
    /// The file of the second fall-back language, which offers every text: "en.json".
    static const QString& getSecondFallbackLanguageFilename();
};
