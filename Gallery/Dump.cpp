#include "Gallery/Dump.h"

#include "Gallery/Catalogue.h"
#include "Gallery/UiResources.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

void insertBelow(QJsonObject& object, const QString& name, const QString& subname, const QJsonValue& value)
{
    QJsonObject members = object.value(name).toObject();
    members.insert(subname, value);
    object.insert(name, members);
}

QString member(const QVariant& entry, const char* name)
{
    return entry.toMap().value(QLatin1String(name)).toString();
}

} // namespace

QByteArray dump(const UiResources& resources, const Catalogue& catalogue)
{
    QJsonObject colors;
    for (const QVariant& entry : catalogue.colors(QString())) {
        const QString group = member(entry, "group");
        const QString key = member(entry, "key");
        insertBelow(colors, group, key, resources.colors()->getColor(group, key));
    }
    QJsonObject families;
    QJsonObject sizes;
    for (const QVariant& entry : catalogue.fonts(QString())) {
        const QString group = member(entry, "group");
        const QString key = member(entry, "key");
        if (!families.contains(group))
            families.insert(group, resources.fonts()->getFontFamily(group));
        insertBelow(sizes, group, key, resources.fonts()->getFontPointSize(group, key));
    }
    QJsonObject icons;
    for (const QString& alias : catalogue.icons(QString())) {
        for (const QString& context : catalogue.property("contexts").toStringList())
            insertBelow(icons, alias, context, resources.icons()->getIconPathAsFileUrl(alias, context));
    }
    const QJsonObject answers{
        {QStringLiteral("colors"), colors},
        {QStringLiteral("fontFamilies"), families},
        {QStringLiteral("fontPointSizes"), sizes},
        {QStringLiteral("dimensions"), QJsonObject::fromVariantMap(resources.dimensions()->uiElementDimensions())},
        {QStringLiteral("icons"), icons},
        {QStringLiteral("texts"), QJsonObject::fromVariantMap(resources.texts()->translatedTexts())},
    };
    return QJsonDocument(answers).toJson();
}
