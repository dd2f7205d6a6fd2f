#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QRegularExpression>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;
using ResourceFormat::IniParser;

namespace
{

Rule::Check forEachFile(void (*check)(const IniFile& file, const Report& report))
{
    return [check](const Project& project, const Report& report) {
        check(project.resources.colors, report);
        check(project.resources.fonts, report);
        for (const DimensionFile& dimension : project.resources.dimensions)
            check(dimension.file, report);
    };
}

void checkSyntax(const IniFile& file, const Report& report)
{
    for (const IniParser::Fault& fault : file.content().faults())
        report(file.place(fault.line), fault.reason);
}

// The part of a value that readers of other INI dialects drop.
QRegularExpressionMatch findTrap(const QString& value)
{
    static const QRegularExpression wholeQuoted(QStringLiteral("^\"[^\"]*\"$"));
    static const QRegularExpression trap(QStringLiteral("(?<=\\s)[;#].*|\""));
    return wholeQuoted.match(value).hasMatch() ? QRegularExpressionMatch() : trap.match(value);
}

void checkTraps(const IniFile& file, const Report& report)
{
    for (const IniEntry& entry : file.content().entries()) {
        const QRegularExpressionMatch trap = findTrap(file.writtenValue(entry));
        if (!trap.hasMatch())
            continue;
        Place place = file.valuePlace(entry);
        place.column += trap.capturedStart();
        const QString text = trap.captured();
        report(
            place,
            text == QLatin1String("\"")
                ? QStringLiteral("the value of \"%1\" includes a quotation mark; quote the whole value or none of it")
                      .arg(entry.key)
                : QStringLiteral("the value of \"%1\" includes \"%2\"; move a comment to its own line")
                      .arg(entry.key, text));
    }
}

} // namespace

QVector<Rule> iniRules()
{
    return {
        {QStringLiteral("ini-syntax"), Severity::Error,
         QStringLiteral("A device skips a line that it does not understand and logs a warning at every start."),
         forEachFile(checkSyntax),
         QStringLiteral(
             "A line is blank, a comment, `[Group]` or `Key=value`. Names must be unique, and `]` closes a group.")},
        {QStringLiteral("ini-trap"), Severity::Warning,
         QStringLiteral("A value keeps its text exactly: comments and quotation marks inside it reach the display."),
         forEachFile(checkTraps),
         QStringLiteral(
             "Write a comment on its own line. Quote a whole value or no part of it: not `#102030 ; gray`.")},
    };
}

} // namespace ResourceCheck
