#include "Gallery/Catalogue.h"

#include "Common/IniTools/IniFileManager.h"
#include "Common/TextTools/LanguageDefinitions.h"
#include "Gallery/UiResources.h"
#include "ResourceFormat/Contrast.h"

#include <QColor>
#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{

QString nameOf(const QString& group, const QString& key)
{
    return group + QLatin1Char('/') + key;
}

// Every group and key of the file with its value, in the order of the file.
QList<QPair<QVariantMap, QString>> entriesOf(const QString& path)
{
    QList<QPair<QVariantMap, QString>> entries;
    if (path.isEmpty())
        return entries;
    const IniFileManager file(path, nullptr);
    const QList<QString> groups = file.getGroups();
    for (const QString& group : groups) {
        const QList<QString> keys = file.getChildKeys(group);
        for (const QString& key : keys) {
            const QVariantMap name{{QStringLiteral("group"), group}, {QStringLiteral("key"), key}};
            entries.append({name, file.getValueString(group, key, QString())});
        }
    }
    return entries;
}

QString nameOf(const QVariantMap& entry)
{
    return nameOf(entry.value(QStringLiteral("group")).toString(), entry.value(QStringLiteral("key")).toString());
}

QVariantList matching(const QVariantList& entries, const QString& search)
{
    QVariantList matches;
    for (const QVariant& entry : entries) {
        if (nameOf(entry.toMap()).contains(search, Qt::CaseInsensitive))
            matches.append(entry);
    }
    return matches;
}

} // namespace

Catalogue::Catalogue(const UiResources& resources)
    : resources(resources)
{
    connect(&resources, &UiResources::reloaded, this, &Catalogue::update);
    update();
}

QVariantList Catalogue::colors(const QString& search) const
{
    return matching(colorNames, search);
}

QVariantList Catalogue::fonts(const QString& search) const
{
    return matching(fontNames, search);
}

QStringList Catalogue::dimensions(const QString& search) const
{
    QMap<QString, QVariant> names;
    for (const QVariantMap& dimensions : dimensionsByDisplay) {
        for (auto dimension = dimensions.begin(); dimension != dimensions.end(); ++dimension)
            names.insert(dimension.key(), QVariant());
    }
    return QStringList(names.keys()).filter(search, Qt::CaseInsensitive);
}

QStringList Catalogue::icons(const QString& search) const
{
    return QStringList(contextsByAlias.keys()).filter(search, Qt::CaseInsensitive);
}

QStringList Catalogue::texts(const QString& search) const
{
    const QList<QString> urls =
        resources.textManager().getAvailableUrls(LanguageDefinitions::getSecondFallbackLanguageFilename());
    QStringList matches;
    for (const QString& url : urls) {
        const auto matchesIn = [&](const QString& language) {
            return text(url, language).contains(search, Qt::CaseInsensitive);
        };
        if (url.contains(search, Qt::CaseInsensitive) || std::any_of(languages.begin(), languages.end(), matchesIn))
            matches.append(url);
    }
    return matches;
}

bool Catalogue::isColor(const QString& text) const
{
    return QColor::isValidColor(text);
}

double Catalogue::contrast(const QString& text, const QString& background) const
{
    if (!isColor(text) || !isColor(background))
        return 0;
    return ResourceFormat::Contrast::ratio(QColor(text), QColor(background));
}

QString Catalogue::usedFamily(const QString& family) const
{
    const bool isInstalled = QFontDatabase().families().contains(family, Qt::CaseInsensitive);
    return isInstalled ? family : QFontInfo(QFont(family)).family();
}

QString Catalogue::fontPixels(const QString& group, const QString& key) const
{
    return fontPixelsByName.value(nameOf(group, key));
}

QVariant Catalogue::dimension(const QString& display, const QString& name) const
{
    return dimensionsByDisplay.value(display).value(name);
}

QString Catalogue::effectiveContext(const QString& alias, const QString& context) const
{
    return contextsByAlias.value(alias).contains(context) ? context : TarnisIconHandler::defaultContextPathKey;
}

QString Catalogue::text(const QString& url, const QString& language) const
{
    return resources.textManager().getText(url, language);
}

bool Catalogue::isTextMissing(const QString& url, const QString& language) const
{
    const auto has = [&](const QString& name) {
        return resources.textManager().getAvailableUrls(name + QStringLiteral(".json")).contains(url);
    };
    return !has(language) && !has(language.section(QLatin1Char('_'), 0, 0));
}

void Catalogue::update()
{
    const ServiceAnswers& answers = resources.answers();
    colorNames.clear();
    for (const auto& [name, value] : entriesOf(answers.colorIniFilePath))
        colorNames.append(name);
    fontNames.clear();
    fontPixelsByName.clear();
    for (const auto& [name, value] : entriesOf(answers.fontIniFilePath)) {
        if (name.value(QStringLiteral("key")) != QStringLiteral("Family")) {
            fontNames.append(name);
            fontPixelsByName.insert(nameOf(name), value);
        }
    }
    displays.clear();
    dimensionsByDisplay.clear();
    for (const auto& [size, path] : answers.displaySizes) {
        const QString display = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
        displays.append(display);
        for (const auto& [name, value] : entriesOf(path))
            dimensionsByDisplay[display].insert(nameOf(name), value);
    }
    const QDir texts(resources.directory() + QStringLiteral("/texts"));
    languages = resources.directory().isEmpty() ? QStringList() : texts.entryList({QStringLiteral("*.json")});
    languages.replaceInStrings(QStringLiteral(".json"), QString());
    updateIcons();
    ++revision;
    Q_EMIT changed();
}

void Catalogue::updateIcons()
{
    contextsByAlias.clear();
    contexts = QStringList(TarnisIconHandler::defaultContextPathKey);
    const QJsonObject table = QJsonDocument::fromJson(resources.answers().iconMappingTable.toUtf8()).object();
    for (auto alias = table.begin(); alias != table.end(); ++alias) {
        const QStringList listed = alias->toObject().keys();
        contextsByAlias.insert(alias.key(), listed);
        for (const QString& context : listed) {
            if (!contexts.contains(context))
                contexts.append(context);
        }
    }
}
