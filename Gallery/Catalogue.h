#pragma once

#include <QObject>
#include <QVariantList>

class UiResources;

/// The names that the resources hold, and what there is to say about their values beyond the library's answers. A
/// device's front end knows its names and needs nothing like it. The QML singleton `Catalogue` of the module `Tarnis`.
///
/// The lists hold what contains the text of `search`, in any letter case.
class Catalogue : public QObject
{
    Q_OBJECT

    /// Rises with every change of the names; the lists are to be asked for again.
    Q_PROPERTY(int revision MEMBER revision NOTIFY changed)
    Q_PROPERTY(QStringList contexts MEMBER contexts NOTIFY changed)
    Q_PROPERTY(QStringList displays MEMBER displays NOTIFY changed)
    Q_PROPERTY(QStringList languages MEMBER languages NOTIFY changed)

public:
    /// Follows the reloads of `resources`, which must outlive it.
    explicit Catalogue(const UiResources& resources);

    /// Maps with `group` and `key`, in the order of the file.
    Q_INVOKABLE QVariantList colors(const QString& search) const;
    /// Maps with `group` and `key`, in the order of the file; the family's key is left out.
    Q_INVOKABLE QVariantList fonts(const QString& search) const;
    /// Names as in `uiElementDimensions`, of all displays, sorted.
    Q_INVOKABLE QStringList dimensions(const QString& search) const;
    /// Aliases, sorted.
    Q_INVOKABLE QStringList icons(const QString& search) const;
    /// Text URLs of the second fall-back language whose URL or text in any language matches, sorted.
    Q_INVOKABLE QStringList texts(const QString& search) const;

    /// Whether QML can read the text as a colour.
    Q_INVOKABLE bool isColor(const QString& text) const;
    /// The contrast ratio of WCAG 2, from 1 to 21; 0 when one of the two is no colour.
    Q_INVOKABLE double contrast(const QString& text, const QString& background) const;
    /// The family that is used for this one: itself, where it is installed.
    Q_INVOKABLE QString usedFamily(const QString& family) const;
    /// The font size in pixels, as it stands in the file.
    Q_INVOKABLE QString fontPixels(const QString& group, const QString& key) const;
    /// The number that a display has for the name, or null.
    Q_INVOKABLE QVariant dimension(const QString& display, const QString& name) const;
    /// The context whose icon is shown: the requested one, or the default that stands in for it.
    Q_INVOKABLE QString effectiveContext(const QString& alias, const QString& context) const;
    Q_INVOKABLE QString text(const QString& url, const QString& language) const;
    /// Whether neither the language nor its own fall-back has the text.
    Q_INVOKABLE bool isTextMissing(const QString& url, const QString& language) const;

Q_SIGNALS:
    void changed();

private:
    void update();
    void updateIcons();

    const UiResources& resources;
    int revision = 0;
    QVariantList colorNames;
    QVariantList fontNames;
    QMap<QString, QString> fontPixelsByName;
    QMap<QString, QVariantMap> dimensionsByDisplay;
    QMap<QString, QStringList> contextsByAlias;
    QStringList contexts;
    QStringList displays;
    QStringList languages;
};
