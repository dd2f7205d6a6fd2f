#pragma once

#include "Gallery/catalog/Catalog.h"
#include "Gallery/catalog/ColorRows.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariantList>

namespace Gallery
{

/// The colors of the color file, and how well texts can be read on them.
///
/// A background is named by `group/key`, by a key, which is looked up in the group of the text, or by an SVG color
/// name.
class ColorCatalog : public Catalog
{
    Q_OBJECT

public:
    explicit ColorCatalog(const TarnisUi& tarnisUi);

    /// A list of Entry whose names contain `search`, in the order of the file.
    Q_INVOKABLE QVariantList entries(const QString& search) const;

    /// A list of ColorRow. `search` is looked up in the titles and in the names and values of all colors of a row. The
    /// pairs of text and background are those of the checker.
    Q_INVOKABLE QVariantList rows(const QString& search) const;

    /// What contrast can be measured against: two SVG color names, the keys that several groups have, all names.
    Q_INVOKABLE QStringList backgrounds() const;

    /// Whether QML accepts the text as a color.
    Q_INVOKABLE bool isColor(const QString& text) const;

    /// Whether something behind the color shows through.
    Q_INVOKABLE bool isTransparent(const QString& color) const;

    /// The value of the background for a text of this group; null if the group has no such key.
    Q_INVOKABLE QString backgroundColor(const QString& group, const QString& background) const;

    /// What is behind a transparent background: the color `Background` of its group, or white.
    Q_INVOKABLE QString colorBehind(const QString& group, const QString& background) const;

    /// The contrast ratio of WCAG 2.1, from 1 to 21, after transparent colors are blended with what is behind them; 0
    /// if one of the two is not a color.
    Q_INVOKABLE double contrast(const QString& text, const QString& group, const QString& background) const;

    /// The contrast ratio with two decimals, rounded down: it never looks like a minimum that it does not meet.
    Q_INVOKABLE QString ratioText(double ratio) const;

    /// Which levels of WCAG 2.1 the contrast ratio meets, in words.
    Q_INVOKABLE QString verdict(double ratio) const;

    /// 0 if the contrast ratio meets level AA, 1 if only for large text, 2 if not at all.
    Q_INVOKABLE int failure(double ratio) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;
    bool contains(const ColorRow& row, const QString& search) const;

    QVariantList all;
    QHash<QString, QString> values; // by name
    QVector<ColorRow> allRows;
};

} // namespace Gallery
