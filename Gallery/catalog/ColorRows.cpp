#include "Gallery/catalog/ColorRows.h"

#include "ResourceFormat/Contrast.h"
#include "ResourceFormat/Themes.h"

#include <algorithm>

namespace Gallery
{

namespace
{

QString nameOf(const QString& group, const QString& key)
{
    return Entry{group, key, QString()}.name();
}

} // namespace

ColorRows::ColorRows(const QVariantList& entries, const Pairs& pairs)
    : contrastPairs(pairs)
{
    for (const QVariant& variant : entries) {
        const auto entry = variant.value<Entry>();
        if (!keys.contains(entry.group))
            groups.append(entry.group);
        keys[entry.group].append(entry.key);
        names.insert(entry.name());
    }
}

QVector<ColorRow> ColorRows::rows() const
{
    QVector<ColorRow> all;
    for (const QStringList& theme : themes()) {
        for (const QString& key : keysOf(theme)) {
            all.append(row(theme, key, QString()));
            for (const QString& backgroundKey : backgroundKeysOf(theme, key))
                all.append(row(groupsWithPair(theme, key, backgroundKey), key, backgroundKey));
            for (const QString& group : theme)
                appendPairsAcrossGroups(nameOf(group, key), all);
        }
    }
    return all;
}

// Groups with similar keys, each as a list.
QVector<QStringList> ColorRows::themes() const
{
    QVector<QStringList> all;
    for (const QString& group : groups) {
        const auto isSimilar = [&](const QStringList& theme) {
            return ResourceFormat::Themes::areThemes(keys.value(theme.constFirst()), keys.value(group));
        };
        const auto theme = std::find_if(all.begin(), all.end(), isSimilar);
        if (theme == all.end())
            all.append(QStringList(group));
        else
            theme->append(group);
    }
    return all;
}

QStringList ColorRows::keysOf(const QStringList& theme) const
{
    QStringList all;
    for (const QString& group : theme)
        all += keys.value(group);
    all.removeDuplicates();
    return all;
}

// By the convention for keys and by pairs within a group, if any group has the background.
QStringList ColorRows::backgroundKeysOf(const QStringList& theme, const QString& key) const
{
    QStringList found(ResourceFormat::Contrast::backgroundKeyOf(key));
    for (const QString& group : theme) {
        for (const auto& [text, background] : contrastPairs) {
            if (text == nameOf(group, key) && background.startsWith(nameOf(group, QString())))
                found.append(background.mid(group.size() + 1));
        }
    }
    found.removeDuplicates();
    const auto isNowhere = [&](const QString& backgroundKey) {
        return std::none_of(theme.begin(), theme.end(),
                            [&](const QString& group) { return has(group, backgroundKey); });
    };
    found.erase(std::remove_if(found.begin(), found.end(), isNowhere), found.end());
    return found;
}

QStringList ColorRows::groupsWithPair(const QStringList& theme, const QString& key, const QString& backgroundKey) const
{
    if (backgroundKey == ResourceFormat::Contrast::backgroundKeyOf(key))
        return theme;
    QStringList found = theme;
    const auto isUnpaired = [&](const QString& group) {
        return !contrastPairs.contains({nameOf(group, key), nameOf(group, backgroundKey)});
    };
    found.erase(std::remove_if(found.begin(), found.end(), isUnpaired), found.end());
    return found;
}

ColorRow ColorRows::row(const QStringList& theme, const QString& key, const QString& backgroundKey) const
{
    const bool isPair = !backgroundKey.isEmpty();
    ColorRow row{isPair ? QStringLiteral("%1 on %2").arg(key, backgroundKey) : key, {}};
    for (const QString& group : theme) {
        ColorCell cell{group, key, isPair ? nameOf(group, backgroundKey) : QString(), QString()};
        if (!has(group, key))
            cell.missing = key;
        else if (isPair && !has(group, backgroundKey))
            cell.missing = backgroundKey;
        row.cells.append(QVariant::fromValue(cell));
    }
    return row;
}

void ColorRows::appendPairsAcrossGroups(const QString& text, QVector<ColorRow>& rows) const
{
    const auto groupOf = [](const QString& name) { return name.section(QLatin1Char('/'), 0, 0); };
    const auto keyOf = [](const QString& name) { return name.section(QLatin1Char('/'), 1); };
    for (const auto& [textName, background] : contrastPairs) {
        if (textName == text && groupOf(background) != groupOf(text) && has(groupOf(text), keyOf(text))
            && has(groupOf(background), keyOf(background))) {
            const ColorCell cell{groupOf(text), keyOf(text), background, QString()};
            rows.append({QStringLiteral("%1 on %2").arg(keyOf(text), background), {QVariant::fromValue(cell)}});
        }
    }
}

bool ColorRows::has(const QString& group, const QString& key) const
{
    return names.contains(nameOf(group, key));
}

} // namespace Gallery
