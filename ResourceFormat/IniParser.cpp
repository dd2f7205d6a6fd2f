#include "ResourceFormat/IniParser.h"

#include "ResourceFormat/TextDecoder.h"

#include <algorithm>

namespace ResourceFormat
{

namespace
{

QString unquoted(QStringView value)
{
    const bool isQuoted = value.size() >= 2 && value.front() == QLatin1Char('"') && value.back() == QLatin1Char('"');
    return (isQuoted ? value.mid(1, value.size() - 2) : value).toString();
}

} // namespace

IniParser::IniParser(const QByteArray& content, const char* codec)
{
    const QString text = decode(content, codec);
    entryList.reserve(text.count(QLatin1Char('=')));
    int number = 0;
    for (int begin = 0; begin < text.size();) {
        const int newline = text.indexOf(QLatin1Char('\n'), begin);
        const int end = newline < 0 ? text.size() : newline;
        parseLine(QStringView(text).mid(begin, end - begin).trimmed(), ++number);
        begin = end + 1;
    }
    std::stable_sort(faultList.begin(), faultList.end(),
                     [](const Fault& left, const Fault& right) { return left.line < right.line; });
}

const QStringList& IniParser::groups() const
{
    return groupNames;
}

QStringList IniParser::keys(const QString& group) const
{
    return groupKeys.value(groupIndices.value(group, noGroup));
}

const QVector<IniEntry>& IniParser::entries() const
{
    return entryList.list();
}

const QVector<IniParser::Fault>& IniParser::faults() const
{
    return faultList;
}

QString IniParser::decode(const QByteArray& content, const char* codec)
{
    TextDecoder decoder(codec);
    const QString text = decoder.decode(content.constData(), content.size());
    return decoder.faultCount() == 0 && !decoder.isWithinCharacter() ? text : decodeLines(content, codec);
}

// Line by line, so that undecodable bytes are reported with their line.
QString IniParser::decodeLines(const QByteArray& content, const char* codec)
{
    QString text;
    TextDecoder decoder(codec);
    int number = 1;
    for (int begin = 0; begin < content.size();) {
        const int newline = content.indexOf('\n', begin);
        const int end = newline < 0 ? content.size() : newline + 1;
        const int faultsBefore = decoder.faultCount();
        const QString line = decoder.decode(content.constData() + begin, end - begin);
        const bool isCutOff = end == content.size() && decoder.isWithinCharacter();
        if (decoder.faultCount() > faultsBefore || isCutOff)
            addFault(number, QStringLiteral("bytes that are not valid %1 text").arg(decoder.name()));
        text += line;
        if (isCutOff)
            text += QChar(QChar::ReplacementCharacter);
        number += line.count(QLatin1Char('\n'));
        begin = end;
    }
    return text;
}

void IniParser::parseLine(QStringView line, int number)
{
    if (line.isEmpty() || line.front() == QLatin1Char(';') || line.front() == QLatin1Char('#'))
        return;
    if (line.front() == QLatin1Char('['))
        parseGroupLine(line, number);
    else
        parseEntryLine(line, number);
}

void IniParser::parseGroupLine(QStringView line, int number)
{
    groupIsUsable = line.endsWith(QLatin1Char(']'));
    if (groupIsUsable)
        enterGroup(line.mid(1, line.size() - 2).trimmed().toString());
    else
        addFault(number,
                 QStringLiteral("group line without a closing \"]\"; entries up to the next group are ignored"));
}

void IniParser::parseEntryLine(QStringView line, int number)
{
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (equals < 0) {
        addFault(number, QStringLiteral("expected a comment, [group] or key=value, found \"%1\"").arg(line.toString()));
        return;
    }
    const QString key = line.left(equals).trimmed().toString();
    if (key.isEmpty()) {
        addFault(number, QStringLiteral("empty key name"));
        return;
    }
    if (!groupIsUsable)
        return;
    if (currentGroup == noGroup)
        enterGroup(QLatin1String(""));
    const QString& group = groupNames.at(currentGroup);
    if (entryList.append({group, key, unquoted(line.mid(equals + 1).trimmed()), number}))
        groupKeys[currentGroup].append(key);
    else
        addFault(number,
                 QStringLiteral("duplicate key \"%1\" in group \"%2\"; the last value is used").arg(key, group));
}

void IniParser::enterGroup(const QString& name)
{
    currentGroup = groupIndices.value(name, noGroup);
    if (currentGroup != noGroup)
        return;
    currentGroup = groupNames.size();
    groupIndices.insert(name, currentGroup);
    groupNames.append(name);
    groupKeys.append(QStringList());
}

void IniParser::addFault(int line, const QString& reason)
{
    faultList.append({line, reason});
}

} // namespace ResourceFormat
