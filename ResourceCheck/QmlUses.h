#pragma once

#include <QHash>
#include <QStringList>

/// What the QML of a front end asks of the handlers.
class QmlUses
{
public:
    static QHash<QString, QString> defaultHandlerNames()
    {
        return {{QStringLiteral("colors"), QStringLiteral("TarnisColorHandler")},
                {QStringLiteral("icons"), QStringLiteral("TarnisIconHandler")}};
    }

    QmlUses(const QStringList& /*directories*/, const QHash<QString, QString>& /*handlerNames*/) { }
};
