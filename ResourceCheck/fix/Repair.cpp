#include "ResourceCheck/fix/Repair.h"

#include "ResourceCheck/reading/Resources.h"

#include <QRegularExpression>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

// The JSON string that begins in the column, without its quotation marks and with its escapes.
QRegularExpressionMatch stringAt(const QString& line, int column)
{
    static const QRegularExpression string(QStringLiteral("\\G\"((?:[^\"\\\\]|\\\\.)*)\""));
    return string.match(line, std::max(0, column - 1));
}

std::optional<LineEdit> withString(const Finding& finding, QString line, const QString& content)
{
    const QRegularExpressionMatch match = stringAt(line, finding.place.column);
    if (!match.hasMatch() || content == match.captured(1))
        return std::nullopt;
    line.replace(match.capturedStart(1), match.capturedLength(1), content);
    return LineEdit{finding.place.line, false, line};
}

std::optional<LineEdit> withoutBlanks(const Finding& finding, const QString& line)
{
    static const QString blank = QStringLiteral("(?:\\s|\\\\[nrt]|\\\\u0020|\\\\u00[aA]0)");
    static const QRegularExpression before(QStringLiteral("^%1+").arg(blank));
    static const QRegularExpression after(QStringLiteral("(?<!\\\\)%1+$").arg(blank));
    return withString(finding, line, stringAt(line, finding.place.column).captured(1).remove(before).remove(after));
}

// Nothing if several files differ only in the case of their paths.
std::optional<LineEdit> withCase(const Finding& finding, const QString& line, const IconDirectory& icons)
{
    const QString path = stringAt(line, finding.place.column).captured(1);
    const QStringList same =
        icons.files().filter(QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(path)),
                                                QRegularExpression::CaseInsensitiveOption));
    const bool isSafe =
        same.size() == 1 && !same.first().contains(QLatin1Char('"')) && !path.contains(QLatin1Char('\\'));
    return isSafe ? withString(finding, line, same.first()) : std::nullopt;
}

std::optional<LineEdit> withoutRepetition(const Finding& finding)
{
    const IniFile file(finding.place.path);
    const IniEntry* previous = nullptr;
    for (const IniEntry& entry : file.content().entries()) {
        if (entry.line < finding.place.line)
            continue;
        if (entry.line > finding.place.line)
            break;
        for (const IniEntry& other : file.content().entries()) {
            if (other.line < entry.line && other.group == entry.group && other.key == entry.key)
                previous = &other;
        }
        if (previous != nullptr && file.writtenValue(*previous) == file.writtenValue(entry))
            return LineEdit{entry.line, true, QString()};
    }
    return std::nullopt;
}

} // namespace

std::optional<LineEdit> Repair::of(const Finding& finding, const QString& line, const Resources& resources)
{
    if (finding.rule == QLatin1String("text-blank"))
        return withoutBlanks(finding, line);
    if (finding.rule == QLatin1String("icon-case"))
        return withCase(finding, line, resources.icons);
    if (finding.rule == QLatin1String("ini-syntax"))
        return withoutRepetition(finding);
    return std::nullopt;
}

} // namespace ResourceCheck
