#include "ResourceCheck/output/ConfigOutput.h"

#include "ResourceCheck/Settings.h"
#include "ResourceCheck/rules/Rule.h"

namespace ResourceCheck
{

namespace
{

// A key without a value is written as a comment, because the file cannot have an empty list.
QString line(const char* explanation, const char* key, QStringList values)
{
    values.sort();
    const QString list = values.join(QLatin1Char(' '));
    return QStringLiteral("; %1\n%2%3=%4\n")
        .arg(QLatin1String(explanation), QLatin1String(list.isEmpty() ? "; " : ""), QLatin1String(key), list);
}

QStringList contrastOf(const Settings& settings)
{
    QStringList values;
    for (const auto& [text, background] : settings.contrastPairs)
        values.append(text + QLatin1Char(':') + background);
    return values;
}

QStringList lengthsOf(const Settings& settings)
{
    QStringList values;
    for (const auto& [group, length] : settings.maximumLengths)
        values.append(group + QLatin1Char('=') + QString::number(length));
    return values;
}

QStringList handlersOf(const Settings& settings)
{
    QStringList values;
    for (auto handler = settings.handlerNames.begin(); handler != settings.handlerNames.end(); ++handler)
        values.append(handler.key() + QLatin1Char('=') + handler.value());
    return values;
}

} // namespace

QByteArray configOutput(const Settings& settings)
{
    const QString werror = settings.warningsAreErrors ? QStringLiteral("yes") : QStringLiteral("no");
    QString text =
        QStringLiteral("; The settings of this check, in the form of the file DIR/.tarnis-check.ini.\n\n[Options]\n");
    text += line("Treat warnings as errors: yes or no.", "werror", {werror});
    text += line("Resources that count as used: patterns with * and ?.", "keep", settings.kept);
    text += line("Colors whose contrast is checked: Group/Text:Group/Background.", "contrast", contrastOf(settings));
    text += line("How long the texts of a group can be: GROUP=NUMBER.", "max-length", lengthsOf(settings));
    text += line("The names of handlers in QML, instead of the default names: NAME=CLASS.", "id", handlersOf(settings));
    text += QStringLiteral("\n[Rules]\n");
    for (const Rule& rule : allRules()) {
        text += QStringLiteral("; %1\n%2=%3\n")
                    .arg(rule.reason, rule.name, severityName(settings.severities.value(rule.name, rule.severity)));
    }
    return text.toUtf8();
}

} // namespace ResourceCheck
