#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"

#include "Common/TextTools/LanguageDefinitions.h"

TarnisTextHandler::TarnisTextHandler(const TextManager& manager, QObject* parent)
    : QObject(parent)
    , textManager(manager)
{
    connect(&manager, &TextManagerBase::languageReloaded, this, &TarnisTextHandler::updateTexts);
    updateTexts();
}

const QVariantMap& TarnisTextHandler::translatedTexts() const
{
    return texts;
}

void TarnisTextHandler::updateTexts()
{
    texts = QVariantMap();
    const TextManagerBase& catalog = textManager;
    const QString language = catalog.getLanguageName();
    const QList<QString> urls = catalog.getAvailableUrls(LanguageDefinitions::getSecondFallbackLanguageFilename());
    // URLs are usually sorted, so each one is inserted at the end of the map.
    for (const QString& url : urls)
        texts.insert(texts.constEnd(), url, catalog.getText(url, language));
    Q_EMIT translatedTextsChanged();
}
