// IniParser against a naive reading of the same bytes, and against itself on what it read, written out.
#include "ResourceFormat/IniParser.h"
#include "fuzz/Claims.h"

#include <QMap>
#include <QRegularExpression>
#include <QTextCodec>

namespace
{

// Each group is followed by its entries, each of which is group, key and value: no line holds a line feed.
struct Reading {
    QStringList content;
    QVector<int> faults;
};

Reading read(const QByteArray& bytes)
{
    Reading result;
    const ResourceFormat::IniParser parser(bytes, *QTextCodec::codecForName("UTF-8"));
    for (const QString& group : parser.groups()) {
        result.content += group;
        for (const QString& key : parser.keys(group))
            result.content += group + '\n' + key + '\n' + parser.find(group, key)->value;
    }
    for (const ResourceFormat::IniParser::Fault& fault : parser.faults())
        result.faults += fault.line;
    return result;
}

Reading readNaively(const QByteArray& bytes)
{
    Reading result;
    QStringList groups;
    QStringList names;
    QMap<QString, QString> values;
    QString group;
    bool isUsable = true;
    const QStringList lines = QString::fromUtf8(bytes.constData(), bytes.size()).split('\n');
    const QList<QByteArray> encodedLines = bytes.split('\n');
    for (int index = 0; index < lines.size(); ++index) {
        const QString line = lines.at(index).trimmed();
        const QByteArray encoded = "no byte-order mark " + encodedLines.at(index);
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
                const QString value = line.section('=', 1).trimmed();
                const bool isQuoted = value.size() > 1 && value.startsWith('"') && value.endsWith('"');
                values[name] = isQuoted ? value.mid(1).chopped(1) : value;
                names += name;
                groups += group;
            }
        }
        if (QString::fromUtf8(encoded.constData(), encoded.size()).toUtf8() != encoded)
            result.faults += index + 1;
        if (isFault)
            result.faults += index + 1;
    }
    groups.removeDuplicates();
    names.removeDuplicates();
    for (const QString& known : qAsConst(groups)) {
        result.content += known;
        for (const QString& name : qAsConst(names))
            result.content += name.startsWith(known + '\n') ? QStringList(name + '\n' + values[name]) : QStringList();
    }
    return result;
}

// The bytes of a character that the end of the file cuts off: one U+FFFD to the parser, several to the naive reading.
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
