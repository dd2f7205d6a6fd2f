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
    // A catalogue lists its URLs in order as a rule: then each belongs at the end of the map.
    for (const QString& url : urls)
        texts.insert(texts.constEnd(), url, catalogue.getText(url, language));
    Q_EMIT translatedTextsChanged();
}
