#include "ResourceCheck/rules/LocaleName.h"

#include <QLocale>
#include <QRegularExpression>

namespace ResourceCheck
{

bool isLocaleName(const QString& name)
{
    static const QRegularExpression script(QStringLiteral("(?<=[a-z])_[A-Z][a-z]{3}(?=_|$)"));
    const QLocale locale(name);
    const QString known = locale.name();
    const QString plain = QString(name).remove(script);
    const bool isLanguage = known.section(QLatin1Char('_'), 0, 0) == plain;
    return locale.language() != QLocale::C && (isLanguage || known == plain);
}

} // namespace ResourceCheck
