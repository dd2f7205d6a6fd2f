#include "Gallery/catalog/ColorCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "ResourceCheck/Settings.h"
#include "ResourceFormat/Contrast.h"

#include <QColor>
#include <QFileInfo>

#include <algorithm>

namespace Gallery
{

namespace Contrast = ResourceFormat::Contrast;

namespace
{

QString nameOf(const QString& group, const QString& key)
{
    return Entry{group, key, QString()}.name();
}

} // namespace

ColorCatalog::ColorCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
    start();
}

QVariantList ColorCatalog::entries(const QString& search) const
{
    return Entry::matching(all, search);
}

QVariantList ColorCatalog::rows(const QString& search) const
{
    QVariantList found;
    for (const ColorRow& row : allRows) {
        if (contains(row, search))
            found.append(QVariant::fromValue(row));
    }
    return found;
}

QStringList ColorCatalog::backgrounds() const
{
    QStringList keys;
    QStringList names;
    QHash<QString, int> counts;
    for (const QVariant& variant : all) {
        const auto entry = variant.value<Entry>();
        names.append(entry.name());
        if (++counts[entry.key] == 2)
            keys.append(entry.key);
    }
    return QStringList{QStringLiteral("white"), QStringLiteral("black")} + keys + names;
}

bool ColorCatalog::isColor(const QString& text) const
{
    return QColor::isValidColor(text);
}

bool ColorCatalog::isTransparent(const QString& color) const
{
    return isColor(color) && QColor(color).alpha() < 255;
}

QString ColorCatalog::backgroundColor(const QString& group, const QString& background) const
{
    const QString named = values.value(background, values.value(nameOf(group, background)));
    return named.isNull() && isColor(background) ? background : named;
}

QString ColorCatalog::colorBehind(const QString& group, const QString& background) const
{
    const QString name = values.contains(background) ? background : nameOf(group, background);
    const QString behind = nameOf(name.section(QLatin1Char('/'), 0, 0), Contrast::backgroundKey());
    return behind != name && isColor(values.value(behind)) ? values.value(behind) : QStringLiteral("white");
}

double ColorCatalog::contrast(const QString& text, const QString& group, const QString& background) const
{
    const QString color = backgroundColor(group, background);
    if (!isColor(text) || !isColor(color))
        return 0;
    return Contrast::ratio(QColor(text), QColor(color), QColor(colorBehind(group, background)));
}

QString ColorCatalog::ratioText(double ratio) const
{
    return Contrast::text(ratio);
}

QString ColorCatalog::verdict(double ratio) const
{
    if (ratio >= Contrast::minimumAAA)
        return QStringLiteral("AA and AAA");
    if (ratio >= Contrast::minimumAA)
        return QStringLiteral("AA; AAA if large");
    if (ratio >= Contrast::minimumAAOfLarge)
        return QStringLiteral("AA only if large");
    return QStringLiteral("fails AA");
}

int ColorCatalog::failure(double ratio) const
{
    if (ratio >= Contrast::minimumAA)
        return 0;
    return ratio >= Contrast::minimumAAOfLarge ? 1 : 2;
}

bool ColorCatalog::contains(const ColorRow& row, const QString& search) const
{
    if (row.title.contains(search, Qt::CaseInsensitive))
        return true;
    return std::any_of(row.cells.begin(), row.cells.end(), [&](const QVariant& variant) {
        const auto cell = variant.value<ColorCell>();
        const QString name = nameOf(cell.group, cell.key);
        const QStringList texts{name, values.value(name), cell.background, values.value(cell.background)};
        return !texts.filter(search, Qt::CaseInsensitive).isEmpty();
    });
}

bool ColorCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.colorFile == old.colorFile)
        return false;
    all = Entry::ofFile(fresh.colorFile.value);
    values.clear();
    for (const QVariant& variant : qAsConst(all)) {
        const auto entry = variant.value<Entry>();
        values.insert(entry.name(), entry.value);
    }
    ResourceCheck::Settings settings;
    settings.readFileOf(QFileInfo(fresh.colorFile.value).path()); // its faults are those of the checker
    allRows = ColorRows(all, settings.contrastPairs).rows();
    return true;
}

} // namespace Gallery
