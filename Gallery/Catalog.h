#pragma once

#include "Common/TextTools/TextManager.h"
#include "QmlHost/TarnisUi.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <memory>

namespace Gallery
{

/// The names of all resources, and facts about their values that the handlers do not tell. The front end of a device
/// knows its names and needs no such class. The QML singleton `Catalog` of the module `Tarnis`.
///
/// Each list is limited to the entries that contain the text `search`; upper and lower case are equal.
class Catalog : public QObject
{
    Q_OBJECT

    /// Increases with every change of the names: read the lists again.
    Q_PROPERTY(int revision READ revision NOTIFY changed)
    /// The default context first.
    Q_PROPERTY(QStringList contexts READ contexts NOTIFY changed)
    /// The names of the supported display sizes.
    Q_PROPERTY(QStringList displays READ displays NOTIFY changed)

public:
    /// Follows the answers of `tarnisUi`, which must outlive the catalog.
    explicit Catalog(const TarnisUi& tarnisUi);

    int revision() const;
    QStringList contexts() const;
    QStringList displays() const;

    /// A list of Entry, in the order of the file.
    Q_INVOKABLE QVariantList colors(const QString& search) const;
    /// A list of Entry whose values are pixels, in the order of the file, without the font families.
    Q_INVOKABLE QVariantList fonts(const QString& search) const;
    /// Names as in `uiElementDimensions`, of all displays, sorted.
    Q_INVOKABLE QStringList dimensions(const QString& search) const;
    /// Aliases, sorted.
    Q_INVOKABLE QStringList icons(const QString& search) const;
    /// URLs of the second fallback language, sorted. `search` is looked up in the texts of all languages, too.
    Q_INVOKABLE QStringList texts(const QString& search) const;

    /// Whether QML accepts the text as a color.
    Q_INVOKABLE bool isColor(const QString& text) const;
    /// The contrast ratio of WCAG 2, from 1 to 21; 0 if one of the texts is not a color.
    Q_INVOKABLE double contrast(const QString& text, const QString& background) const;
    /// The font family that is drawn for this one: itself if it is installed.
    Q_INVOKABLE QString usedFamily(const QString& family) const;
    /// The value in the display's file, or an invalid one if the name is missing there.
    Q_INVOKABLE QVariant dimension(const QString& display, const QString& name) const;
    /// The context whose icon is shown when `context` is requested; empty if there is none.
    Q_INVOKABLE QString effectiveContext(const QString& alias, const QString& context) const;
    Q_INVOKABLE QString text(const QString& url, const QString& language) const;
    /// Whether neither the language nor the one that it is a variant of has the text.
    Q_INVOKABLE bool isTextMissing(const QString& url, const QString& language) const;

Q_SIGNALS:
    void changed();

private:
    void update();
    void updateFonts();
    void updateDisplays();
    void updateIcons();
    QStringList urls(const QString& language) const;

    const TarnisUi& ui;
    QmlHost::Answers answers;                 // that the lists are read from
    std::unique_ptr<TextManager> textManager; // null without texts
    int currentRevision = 0;
    QVariantList colorEntries;
    QVariantList fontEntries;
    QMap<QString, QVariantMap> dimensionsByDisplay;
    TarnisIconHandler::IconMap iconMap;
    QStringList contextNames;
    QStringList displayNames;
};

} // namespace Gallery
