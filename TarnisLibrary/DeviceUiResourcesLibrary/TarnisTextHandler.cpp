#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"

#include "Common/TextTools/LanguageDefinitions.h"

TarnisTextHandler::TarnisTextHandler(const TextManager& textManager, QObject* parent)
    : QObject(parent)
    , textManager(textManager)
{
    connect(&textManager, &TextManagerBase::languageReloaded, this, &TarnisTextHandler::updateTexts);
    updateTexts();
}

const QVariantMap& TarnisTextHandler::translatedTexts() const
{
    return texts;
}

void TarnisTextHandler::updateTexts()
{
    texts = QVariantMap();
    const TextManagerBase& catalogue = textManager;
    const QString language = catalogue.getLanguageName();
    const QList<QString> urls = catalogue.getAvailableUrls(LanguageDefinitions::getSecondFallbackLanguageFilename());
    for (const QString& url : urls)
        texts.insert(url, catalogue.getText(url, language));
    Q_EMIT translatedTextsChanged();
}
