#include "ResourceCheck/output/TextOutput.h"

#include "ResourceCheck/output/SourceLines.h"

#include <QLocale>
#include <QMap>
#include <QStringList>

#include <algorithm>

namespace ResourceCheck
{

namespace
{

// Names in the resources can contain anything, but must not break a line or control the terminal.
QString printable(const QString& text)
{
    QString result;
    for (const QChar character : text) {
        const bool isControl = character.category() == QChar::Other_Control;
        result += isControl ? QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0')) : character;
    }
    return result;
}

// The part of the line around the column, and a mark below it.
QString excerpt(const QString& line, int column)
{
    constexpr int before = 60;
    constexpr int width = 120;
    const int begin = std::max(0, column - before);
    const QString part = line.mid(begin, width).trimmed();
    if (part.isEmpty())
        return QString();
    const int blanks = line.indexOf(part, begin);
    const QString mark =
        column > 0 ? QStringLiteral("    %1^\n").arg(QString(), std::max(0, column - 1 - blanks)) : QString();
    return QStringLiteral("    %1\n%2").arg(printable(part), mark);
}

QString counted(const QVector<Finding>& findings, Severity severity)
{
    const auto count = std::count_if(findings.begin(), findings.end(),
                                     [severity](const Finding& finding) { return finding.severity == severity; });
    const QLatin1String plural(count == 1 ? "" : "s");
    return QStringLiteral("%1 %2%3").arg(QString::number(count), severityName(severity), plural);
}

} // namespace

QByteArray textOutput(const QVector<Finding>& findings, bool isColored, bool hasSource)
{
    SourceLines source;
    const auto colored = [isColored](const QString& color, const QString& text) {
        return isColored ? QStringLiteral("\033[%1m\033[K%2\033[m\033[K").arg(color, text) : text;
    };
    QStringList lines;
    for (const Finding& finding : findings) {
        QString place = printable(finding.place.path) + QLatin1Char(':');
        for (const int number : {finding.place.line, finding.place.column})
            place += number > 0 ? QString::number(number) + QLatin1Char(':') : QString();
        const QString color = QLatin1String(finding.severity == Severity::Error ? "01;31" : "01;35");
        const QString severity = colored(color, severityName(finding.severity) + QLatin1Char(':'));
        lines.append(QStringLiteral("%1 %2 %3 [%4]\n")
                         .arg(colored(QStringLiteral("01"), place), severity, printable(finding.message),
                              colored(color, finding.rule)));
        if (hasSource)
            lines.append(excerpt(source.line(finding.place), finding.place.column));
    }
    return lines.join(QString()).toUtf8();
}

QByteArray summaryOutput(const QVector<Finding>& findings)
{
    constexpr int nameWidth = 32;
    constexpr int numberWidth = 8;
    QMap<QString, int> counts;
    for (const Finding& finding : findings)
        ++counts[finding.rule];
    QByteArray table;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        table += QStringLiteral("%1%2\n").arg(count.key(), -nameWidth).arg(count.value(), numberWidth).toUtf8();
    return table + totals(findings);
}

QByteArray undeterminableOutput(const QmlNames& names, bool isListed)
{
    QStringList lines;
    for (const QmlFault& name : names.undeterminable) {
        const QString path = printable(name.place.path);
        if (isListed)
            lines.append(QStringLiteral("%1:%2:%3: %4\n")
                             .arg(path)
                             .arg(name.place.line)
                             .arg(name.place.column)
                             .arg(name.message));
    }
    const QLocale locale(QLocale::English);
    if (!names.undeterminable.isEmpty()) {
        lines.append(QStringLiteral("%1 of %2 names depend on run-time values%3\n")
                         .arg(locale.toString(names.undeterminable.size()), locale.toString(names.count),
                              isListed ? QString() : QStringLiteral("; --show-unresolved lists them")));
    }
    return lines.join(QString()).toUtf8();
}

QByteArray totals(const QVector<Finding>& findings)
{
    QStringList parts{counted(findings, Severity::Error), counted(findings, Severity::Warning)};
    return parts.join(QStringLiteral(", ")).toUtf8() + '\n';
}

} // namespace ResourceCheck
