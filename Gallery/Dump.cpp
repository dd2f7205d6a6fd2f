#include "Gallery/Dump.h"

#include "Gallery/ResourceNames.h"
#include "Gallery/UiResources.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

// One object per entry of the list, named by its member `nameKey`, with the answer for each of its `subnamesKey`.
template <typename Lookup>
QJsonObject lookUpAll(const QVariantList& names, const char* nameKey, const char* subnamesKey, Lookup lookUp)
{
    QJsonObject all;
    for (const QVariant& entry : names) {
        const QVariantMap map = entry.toMap();
        const QString name = map.value(QLatin1String(nameKey)).toString();
        QJsonObject answers;
        const QStringList subnames = map.value(QLatin1String(subnamesKey)).toStringList();
        for (const QString& subname : subnames)
            answers.insert(subname, lookUp(name, subname));
        all.insert(name, answers);
    }
    return all;
}

} // namespace

QByteArray dump(const UiResources& resources, const ResourceNames& names)
{
    const auto color = [&](const QString& group, const QString& key) {
        return resources.colors()->getColor(group, key);
    };
    const auto pointSize = [&](const QString& group, const QString& key) {
        return resources.fonts()->getFontPointSize(group, key);
    };
    const auto iconUrl = [&](const QString& alias, const QString& context) {
        return resources.icons()->getIconPathAsFileUrl(alias, context);
    };
    QJsonObject families;
    for (const QVariant& entry : names.fonts) {
        const QString group = entry.toMap().value(QStringLiteral("group")).toString();
        families.insert(group, resources.fonts()->getFontFamily(group));
    }
    const QJsonObject answers{
        {QStringLiteral("colors"), lookUpAll(names.colors, "group", "keys", color)},
        {QStringLiteral("fontFamilies"), families},
        {QStringLiteral("fontPointSizes"), lookUpAll(names.fonts, "group", "keys", pointSize)},
        {QStringLiteral("dimensions"), QJsonObject::fromVariantMap(resources.dimensions()->uiElementDimensions())},
        {QStringLiteral("icons"), lookUpAll(names.icons, "alias", "contexts", iconUrl)},
        {QStringLiteral("texts"), QJsonObject::fromVariantMap(resources.texts()->translatedTexts())},
    };
    return QJsonDocument(answers).toJson();
}
