#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QRegularExpression>

namespace
{

template <typename Check>
void forEachFile(const Resources& resources, const Check& check)
{
    check(resources.colors);
    check(resources.fonts);
    for (const DimensionFile& dimension : resources.dimensions)
        check(dimension.file);
}

void checkSyntax(const Project& project, const Report& report)
{
    forEachFile(project.resources, [&report](const IniFile& file) {
        for (const IniParser::Fault& fault : file.content().faults())
            report(file.place(fault.line), fault.reason);
    });
}

// The text that makes the value mean something else to other readers; empty if there is none.
QRegularExpressionMatch findTrap(const QString& value)
{
    static const QRegularExpression wholeQuoted(QStringLiteral("^\"[^\"]*\"$"));
    static const QRegularExpression trap(QStringLiteral("(?<=\\s)[;#].*|\""));
    return wholeQuoted.match(value).hasMatch() ? QRegularExpressionMatch() : trap.match(value);
}

void checkTraps(const Project& project, const Report& report)
{
    forEachFile(project.resources, [&report](const IniFile& file) {
        for (const IniEntry& entry : file.content().entries()) {
            const QRegularExpressionMatch trap = findTrap(file.writtenValue(entry));
            if (!trap.hasMatch())
                continue;
            Place place = file.valuePlace(entry);
            place.column += trap.capturedStart();
            report(place,
                   QStringLiteral("%1 is part of the value of \"%2\" here; other readers would take it off")
                       .arg(trap.captured(), entry.key));
        }
    });
}

} // namespace

QVector<Rule> iniRules()
{
    return {
        {QStringLiteral("ini-syntax"), Severity::Error,
         QStringLiteral("A line that is not understood is left out, and said in the log at every start."), checkSyntax},
        {QStringLiteral("ini-trap"), Severity::Warning,
         QStringLiteral("A value keeps its text exactly: comments and quotation marks within it reach the display."),
         checkTraps},
    };
}
