// IniParser, compared with a naive reading of the same bytes, and run again on what it read, written out.
#include "ResourceFormat/IniParser.h"
#include "fuzz/Claims.h"

#include <QMap>
#include <QRegularExpression>

namespace
{

// Each group is followed by its entries: group, key and value, separated by line feeds, which no line contains.
struct Reading {
    QStringList content;
    QVector<int> faults;
};

Reading read(const QByteArray& bytes)
{
    Reading result;
    const ResourceFormat::IniParser parser(bytes);
    for (const QString& group : parser.groups()) {
        result.content += group;
        for (const QString& key : parser.keys(group))
            result.content += group + '\n' + key + '\n' + parser.find(group, key)->value;
    }
    for (const ResourceFormat::IniParser::Fault& fault : parser.faults())
        result.faults += fault.line;
    return result;
}

bool isUtf8(const QByteArray& line)
{
    const QByteArray withoutMark = "no byte-order mark " + line;
    return QString::fromUtf8(withoutMark.constData(), withoutMark.size()).toUtf8() == withoutMark;
}

QString unquoted(const QString& value)
{
    const bool isQuoted = value.size() > 1 && value.startsWith('"') && value.endsWith('"');
    return isQuoted ? value.mid(1).chopped(1) : value;
}

Reading readNaively(const QByteArray& bytes)
{
    Reading result;
    QMap<QString, QString> values;
    QMap<QString, QStringList> names;
    QStringList groups;
    QString group;
    bool isUsable = true;
    const QStringList lines = QString::fromUtf8(bytes.constData(), bytes.size()).split('\n');
    const QList<QByteArray> encodedLines = bytes.split('\n');
    for (int index = 0; index < lines.size(); ++index) {
        const QString line = lines.at(index).trimmed();
        const QString name = group + '\n' + line.section('=', 0, 0).trimmed();
        bool isFault = false;
        if (line.startsWith('[')) {
            isUsable = line.endsWith(']');
            isFault = !isUsable;
            group = line.mid(1, line.size() - 2).trimmed();
            groups += isUsable ? QStringList(group) : QStringList();
        } else if (!line.isEmpty() && !line.startsWith(';') && !line.startsWith('#')) {
            const bool isEntry = line.contains('=') && !name.endsWith('\n');
            isFault = !isEntry || (isUsable && values.contains(name));
            if (isEntry && isUsable) {
                names[group] += values.contains(name) ? QStringList() : QStringList(name);
                values[name] = unquoted(line.section('=', 1).trimmed());
                groups += group;
            }
        }
        result.faults += QVector<int>(int(!isUtf8(encodedLines.at(index))) + int(isFault), index + 1);
    }
    groups.removeDuplicates();
    for (const QString& known : qAsConst(groups)) {
        result.content += known;
        for (const QString& name : names.value(known))
            result.content += name + '\n' + values[name];
    }
    return result;
}

// If the end of the file cuts off a character, the parser replaces it by one U+FFFD, the naive reading each of its
// bytes.
QString withShortGaps(const QStringList& content)
{
    static const QRegularExpression gap("\uFFFD+");
    return content.join("\n\n").replace(gap, "\uFFFD");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const Reading reading = read(bytes);
    const Reading expected = readNaively(bytes);
    requireEqual(withShortGaps(reading.content), withShortGaps(expected.content), "groups and entries");
    requireEqual(reading.faults, expected.faults, "lines with a fault");

    QString text;
    for (const QString& item : reading.content) {
        const QStringList parts = item.split('\n');
        text += parts.size() == 1 ? '[' + item + "]\n" : parts.at(1) + "=\"" + parts.at(2) + "\"\n";
    }
    const Reading again = read(text.toUtf8());
    requireEqual(again.content, reading.content, "groups and entries, written and read again");
    requireEqual(again.faults, QVector<int>(), "lines with a fault in what was written");
    return 0;
}
