#include "Common/IniTools/IniParser.h"

#include <QTextCodec>

#include <algorithm>

namespace
{

QString unquoted(const QStringRef& value)
{
    const bool isQuoted = value.size() >= 2 && value.startsWith(QLatin1Char('"')) && value.endsWith(QLatin1Char('"'));
    return (isQuoted ? value.mid(1, value.size() - 2) : value).toString();
}

} // namespace

IniParser::IniParser(const QByteArray& content, QTextCodec& codec)
{
    const QString text = decode(content, codec);
    int number = 0;
    for (const QStringRef& line : text.splitRef(QLatin1Char('\n')))
        parseLine(line.trimmed(), ++number);
    std::stable_sort(faultList.begin(), faultList.end(),
                     [](const Fault& left, const Fault& right) { return left.line < right.line; });
}

const QStringList& IniParser::groups() const
{
    return groupNames;
}

const QVector<IniParser::Entry>& IniParser::entries() const
{
    return entryList;
}

const QVector<IniParser::Fault>& IniParser::faults() const
{
    return faultList;
}

// Line by line, so that undecodable bytes are reported where they stand.
QString IniParser::decode(const QByteArray& content, QTextCodec& codec)
{
    QString text;
    QTextCodec::ConverterState state;
    int number = 1;
    for (int begin = 0; begin < content.size();) {
        const int newline = content.indexOf('\n', begin);
        const int end = newline < 0 ? content.size() : newline + 1;
        const int invalidBefore = state.invalidChars;
        const QString line = codec.toUnicode(content.constData() + begin, end - begin, &state);
        const bool isCutOff = end == content.size() && state.remainingChars > 0;
        if (state.invalidChars > invalidBefore || isCutOff)
            addFault(number, QStringLiteral("bytes that are no %1 text").arg(QString::fromLatin1(codec.name())));
        text += line;
        if (isCutOff)
            text += QChar(QChar::ReplacementCharacter);
        number += line.count(QLatin1Char('\n'));
        begin = end;
    }
    return text;
}

void IniParser::parseLine(const QStringRef& line, int number)
{
    if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#')))
        return;
    if (line.startsWith(QLatin1Char('[')))
        parseGroupLine(line, number);
    else
        parseEntryLine(line, number);
}

void IniParser::parseGroupLine(const QStringRef& line, int number)
{
    groupIsUsable = line.endsWith(QLatin1Char(']'));
    if (groupIsUsable)
        enterGroup(line.mid(1, line.size() - 2).trimmed().toString());
    else
        addFault(number,
                 QStringLiteral("group line without its end \"]\"; the entries up to the next group are left out"));
}

void IniParser::parseEntryLine(const QStringRef& line, int number)
{
    const int equals = line.indexOf(QLatin1Char('='));
    if (equals < 0) {
        addFault(number, QStringLiteral("neither a comment, nor [group], nor key=value: \"%1\"").arg(line.toString()));
        return;
    }
    const QString key = line.left(equals).trimmed().toString();
    if (key.isEmpty()) {
        addFault(number, QStringLiteral("empty key name"));
        return;
    }
    if (!groupIsUsable)
        return;
    enterGroup(currentGroup);
    const QPair<QString, QString> name(currentGroup, key);
    if (knownKeys.contains(name))
        addFault(number,
                 QStringLiteral("key \"%1\" given again in group \"%2\"; the last value holds").arg(key, currentGroup));
    knownKeys.insert(name);
    entryList.append({currentGroup, key, unquoted(line.mid(equals + 1).trimmed()), number});
}

void IniParser::enterGroup(const QString& name)
{
    currentGroup = name;
    if (knownGroups.contains(name))
        return;
    knownGroups.insert(name);
    groupNames.append(name);
}

void IniParser::addFault(int line, const QString& reason)
{
    faultList.append({line, reason});
}
