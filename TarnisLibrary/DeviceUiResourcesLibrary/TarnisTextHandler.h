#pragma once

#include "Common/TextTools/TextManager.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QObject>
#include <QVariantMap>

/// Publishes all texts of the current language and follows the reloads of the text catalog. Logs nothing.
class TARNISLIBRARY_EXPORT TarnisTextHandler : public QObject
{
    Q_OBJECT

    /// Texts by URL: each URL of the second fallback language, in the current language.
    Q_PROPERTY(QVariantMap translatedTexts READ translatedTexts NOTIFY translatedTextsChanged)

public:
    /// The caller keeps the text manager, which must outlive the handler.
    explicit TarnisTextHandler(const TextManager& manager, QObject* parent = nullptr);

    /// Valid until the next update.
    const QVariantMap& translatedTexts() const;

    /// Rebuilds the texts and emits translatedTextsChanged(), even if nothing changed.
    void updateTexts();

Q_SIGNALS:
    /// The texts have been rebuilt.
    void translatedTextsChanged();

private:
    QVariantMap texts;
    const TextManager& textManager;
};
