#pragma once

#include "Common/TextTools/TextManager.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QObject>
#include <QVariantMap>

/// Publishes all texts of the current language and follows the reloads of the text catalogue. Logs nothing.
class TARNISLIBRARY_EXPORT TarnisTextHandler : public QObject
{
    Q_OBJECT

    /// Texts by their URL: each URL that the second fall-back language offers, in the current language.
    Q_PROPERTY(QVariantMap translatedTexts READ translatedTexts NOTIFY translatedTextsChanged)

public:
    /// The text manager stays the caller's and must outlive the handler.
    explicit TarnisTextHandler(const TextManager& textManager, QObject* parent = nullptr);

    /// Valid until the next update.
    const QVariantMap& translatedTexts() const;

    /// Rebuilds the texts and emits translatedTextsChanged(), also when nothing changed.
    void updateTexts();

Q_SIGNALS:
    /// The texts have been built anew.
    void translatedTextsChanged();

private:
    QVariantMap texts;
    const TextManager& textManager;
};
