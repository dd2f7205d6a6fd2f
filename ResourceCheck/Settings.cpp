#include "ResourceCheck/Settings.h"

#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/qml/QmlUses.h"
#include "ResourceCheck/reading/IniFile.h"
#include "ResourceCheck/rules/Rule.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;
using ResourceFormat::IniParser;

namespace
{

QString advice(const QString& name, const QStringList& known)
{
    return Suggestions(known).advice(name, QStringLiteral("use one of: ") + known.join(QStringLiteral(", ")));
}

} // namespace

QString Settings::unknownRule(const QString& name)
{
    QStringList names;
    for (const Rule& rule : allRules())
        names.append(rule.name);
    return QStringLiteral("unknown rule \"%1\"; %2")
        .arg(name, Suggestions(names).advice(name, QStringLiteral("--list-rules lists all rules")));
}

QString Settings::setRule(const QString& name, const QString& severity)
{
    if (findRule(name) == nullptr)
        return unknownRule(name);
    if (!severityNames.contains(severity))
        return QStringLiteral("unknown severity \"%1\" of the rule %2; %3")
            .arg(severity, name, advice(severity, severityNames));
    severities.insert(name, static_cast<Severity>(severityNames.indexOf(severity)));
    return QString();
}

QString Settings::setOption(const QString& name, const QString& value)
{
    if (name == QLatin1String("keep")) {
        kept.append(value);
        return QString();
    }
    if (name == QLatin1String("contrast"))
        return addContrastPair(value);
    if (name == QLatin1String("id"))
        return addHandlerName(value);
    if (name == QLatin1String("werror"))
        return setWarningsAreErrors(value);
    if (name == QLatin1String("max-length"))
        return addMaximumLength(value);
    const QStringList keys = QStringLiteral("werror keep contrast id max-length").split(QLatin1Char(' '));
    return QStringLiteral("unknown key \"%1\"; %2").arg(name, advice(name, keys));
}

QString Settings::addContrastPair(const QString& value)
{
    static const QRegularExpression pair(QStringLiteral("\\A([^:]+/[^:]+):([^:]+/[^:]+)\\z"));
    const QRegularExpressionMatch match = pair.match(value);
    if (!match.hasMatch())
        return QStringLiteral("\"%1\" is not a pair of colors; use Group/Text:Group/Background").arg(value);
    contrastPairs.append({match.captured(1), match.captured(2)});
    return QString();
}

QString Settings::addMaximumLength(const QString& value)
{
    bool isNumber = false;
    const QString group = value.section(QLatin1Char('='), 0, 0);
    const int length = value.section(QLatin1Char('='), 1).toInt(&isNumber);
    if (!isNumber || length < 1 || group.isEmpty())
        return QStringLiteral("\"%1\" is not a length; use GROUP=NUMBER, such as text://Button=12").arg(value);
    maximumLengths.append({group, length});
    return QString();
}

QString Settings::addHandlerName(const QString& value)
{
    QStringList classes = QmlUses::defaultHandlers().values();
    classes.sort();
    const auto equalsSign = value.indexOf(QLatin1Char('='));
    if (equalsSign < 1 || !classes.contains(value.mid(equalsSign + 1))) {
        return QStringLiteral("\"%1\" does not name a handler; use NAME=CLASS with one of the classes %2")
            .arg(value, classes.join(QStringLiteral(", ")));
    }
    handlerNames.insert(value.left(equalsSign), value.mid(equalsSign + 1));
    return QString();
}

QString Settings::setWarningsAreErrors(const QString& value)
{
    warningsAreErrors = value == QLatin1String("yes");
    const bool isKnown = warningsAreErrors || value == QLatin1String("no");
    return isKnown ? QString() : QStringLiteral("unknown value \"%1\" of werror; use yes or no").arg(value);
}

QString Settings::setEntry(const IniEntry& entry)
{
    if (entry.group == QLatin1String("Rules"))
        return setRule(entry.key, entry.value);
    if (entry.group != QLatin1String("Options"))
        return QStringLiteral("unknown group \"%1\"; %2")
            .arg(entry.group, advice(entry.group, {QStringLiteral("Rules"), QStringLiteral("Options")}));
    QString problem;
    const QStringList values = entry.value.simplified().split(QLatin1Char(' '));
    for (auto value = values.begin(); value != values.end() && problem.isNull(); ++value)
        problem = setOption(entry.key, *value);
    return problem;
}

QString Settings::fileName()
{
    return QStringLiteral(".tarnis-check.ini");
}

QString Settings::readFileOf(const QString& directory)
{
    const QFileInfo info(directory + QLatin1Char('/') + fileName());
    if (!info.exists() && !info.isSymLink())
        return QString();
    const IniFile file(info.filePath());
    if (!file.problem().isNull())
        return QStringLiteral("%1: cannot read the file: %2").arg(file.path(), file.problem());
    const auto located = [&file](int line, const QString& problem) {
        return QStringLiteral("%1:%2: %3").arg(file.path(), QString::number(line), problem);
    };
    for (const IniParser::Fault& fault : file.content().faults())
        return located(fault.line, fault.reason);
    for (const IniEntry& entry : file.content().entries()) {
        const QString problem = setEntry(entry);
        if (!problem.isNull())
            return located(entry.line, problem);
    }
    return QString();
}

} // namespace ResourceCheck
