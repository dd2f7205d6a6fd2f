#include "Gallery/Dump.h"

#include "Gallery/catalog/Catalogs.h"
#include "Gallery/catalog/Entry.h"
#include "QmlHost/Ui.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtQml>

namespace Gallery
{

namespace
{

void insertBelow(QJsonObject& object, const QString& name, const QString& subname, const QJsonValue& value)
{
    QJsonObject members = object.value(name).toObject();
    members.insert(subname, value);
    object.insert(name, members);
}

} // namespace

QByteArray dump(const Catalogs& catalogs)
{
    QQmlEngine engine;
    auto* ui = engine.singletonInstance<QmlHost::Ui*>(qmlTypeId("Tarnis", 1, 0, "Ui"));
    QJsonObject colors;
    for (const QVariant& variant : catalogs.colors.entries(QString())) {
        const auto entry = variant.value<Entry>();
        insertBelow(colors, entry.group, entry.key, ui->colors()->getColor(entry.group, entry.key));
    }
    QJsonObject families;
    QJsonObject sizes;
    for (const QVariant& variant : catalogs.fonts.entries(QString())) {
        const auto entry = variant.value<Entry>();
        if (!families.contains(entry.group))
            families.insert(entry.group, ui->fonts()->getFontFamily(entry.group));
        insertBelow(sizes, entry.group, entry.key, ui->fonts()->getFontPointSize(entry.group, entry.key));
    }
    QJsonObject icons;
    const QStringList contexts = catalogs.icons.contexts();
    for (const QString& alias : catalogs.icons.aliases(QString())) {
        for (const QString& context : contexts)
            insertBelow(icons, alias, context, ui->icons()->getIconPathAsFileUrl(alias, context));
    }
    const QJsonObject answers{
        {QStringLiteral("colors"), colors},
        {QStringLiteral("fontFamilies"), families},
        {QStringLiteral("fontPointSizes"), sizes},
        {QStringLiteral("dimensions"), QJsonObject::fromVariantMap(ui->dimensions()->uiElementDimensions())},
        {QStringLiteral("icons"), icons},
        {QStringLiteral("texts"), QJsonObject::fromVariantMap(ui->texts()->translatedTexts())},
    };
    return QJsonDocument(answers).toJson();
}

} // namespace Gallery
