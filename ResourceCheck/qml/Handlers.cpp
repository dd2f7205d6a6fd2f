#include "ResourceCheck/qml/Handlers.h"

namespace ResourceCheck
{

const QVector<HandlerMember>& Handlers::members()
{
    const QString group = QStringLiteral("group");
    const QString key = QStringLiteral("key");
    const QString alias = QStringLiteral("alias");
    const QString colors = QStringLiteral("TarnisColorHandler");
    const QString fonts = QStringLiteral("TarnisFontHandler");
    const QString icons = QStringLiteral("TarnisIconHandler");
    static const QVector<HandlerMember> list{
        {colors, QStringLiteral("getColor"), ResourceKind::Color, {group, key}},
        {fonts, QStringLiteral("getFontFamily"), ResourceKind::FontGroup, {group}},
        {fonts, QStringLiteral("getFontPointSize"), ResourceKind::FontSize, {group, key}},
        {icons, QStringLiteral("getIconPath"), ResourceKind::Icon, {alias}},
        {icons, QStringLiteral("getIconPathAsFileUrl"), ResourceKind::Icon, {alias}},
        {QStringLiteral("TarnisElementDimensionHandler"),
         QStringLiteral("uiElementDimensions"),
         ResourceKind::Dimension,
         {}},
        {QStringLiteral("TarnisTextHandler"), QStringLiteral("translatedTexts"), ResourceKind::Text, {}},
    };
    return list;
}

int Handlers::member(const QString& handler, const QString& name)
{
    for (int index = 0; index < members().size(); ++index) {
        if (members().at(index).handler == handler && members().at(index).name == name)
            return index;
    }
    return -1;
}

bool Handlers::isCommonName(const QString& name)
{
    static const QStringList names{QStringLiteral("objectName"),  QStringLiteral("toString"),
                                   QStringLiteral("destroy"),     QStringLiteral("destroyed"),
                                   QStringLiteral("deleteLater"), QStringLiteral("hasOwnProperty")};
    return names.contains(name) || name.endsWith(QLatin1String("Changed"));
}

const QHash<QString, QString>& Handlers::defaultNames()
{
    static const QHash<QString, QString> names{
        {QStringLiteral("Ui.colors"), QStringLiteral("TarnisColorHandler")},
        {QStringLiteral("Ui.fonts"), QStringLiteral("TarnisFontHandler")},
        {QStringLiteral("Ui.dimensions"), QStringLiteral("TarnisElementDimensionHandler")},
        {QStringLiteral("Ui.texts"), QStringLiteral("TarnisTextHandler")},
        {QStringLiteral("Ui.icons"), QStringLiteral("TarnisIconHandler")},
    };
    return names;
}

const QStringList& Handlers::otherProperties()
{
    static const QStringList names{QStringLiteral("language"), QStringLiteral("languages"), QStringLiteral("ready"),
                                   QStringLiteral("problem")};
    return names;
}

} // namespace ResourceCheck
