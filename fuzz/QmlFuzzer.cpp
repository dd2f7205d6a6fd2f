// The analysis of a front end, run a second time with hash tables in a random order. A byte 0xFF, which no text
// contains, ends each of its files: a page, a component and a script.
#include "ResourceCheck/qml/QmlUses.h"
#include "fuzz/Claims.h"
#include "tests/support/TestProcess.h"

#include <QTemporaryDir>

using namespace ResourceCheck;

namespace
{

const QStringList filenames{"Page.qml", "Part.qml", "names.js"};
const bool canSetSeed = qunsetenv("QT_HASH_SEED");

QString text(const Place& place)
{
    return QString("%1:%2:%3").arg(place.path.section('/', -1)).arg(place.line).arg(place.column);
}

void requireInside(const Place& place, const QList<QByteArray>& contents)
{
    const int file = filenames.indexOf(place.path.section('/', -1));
    const int lines = contents.value(file).count('\n') + contents.value(file).count('\r') + 1;
    requireEqual(file >= 0 && place.line >= 0 && place.line <= lines, true, qPrintable(text(place)));
}

QStringList texts(const QVector<QmlPattern>& patterns)
{
    QStringList all;
    for (const QmlPattern& pattern : patterns)
        all += pattern.text() + '@' + text(pattern.place);
    return all;
}

QStringList analyze(const QString& directory, const QList<QByteArray>& contents)
{
    const QmlUses qml({directory});
    QStringList lines;
    for (const QmlUse& use : qml.uses()) {
        requireInside(use.place, contents);
        lines += QString("%1 %2 %3").arg(text(use.place)).arg(int(use.kind)).arg(int(use.isUndeterminable));
        lines += texts(use.groups) + texts(use.keys);
    }
    for (const QmlFault& fault : qml.faults() + qml.rejectedCalls() + qml.names().undeterminable) {
        requireInside(fault.place, contents);
        lines += text(fault.place) + ' ' + fault.message;
    }
    return lines + qml.declaredNames();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QTemporaryDir directory;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QList<QByteArray> contents = bytes.split('\xFF');
    for (const QString& filename : filenames)
        Tests::writeFile(directory.filePath(filename), contents.value(filenames.indexOf(filename)));
    qSetGlobalQHashSeed(0);
    const QStringList findings = analyze(directory.path(), contents);
    qSetGlobalQHashSeed(-1); // random; Qt prints a warning for any other
    requireEqual(analyze(directory.path(), contents), findings, "findings with another order of the hash tables");
    return canSetSeed ? 0 : -1;
}
