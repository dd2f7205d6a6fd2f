// The reader of SVG files, run twice on the same bytes. Each fault is at the beginning of an element or of the file.
#include "ResourceCheck/svg/SvgReader.h"
#include "fuzz/Claims.h"

#include <QStringList>

using namespace ResourceCheck;

namespace
{

QStringList read(const QString& path, const QByteArray& bytes)
{
    const QStringList lines = QString::fromUtf8(bytes).split('\n');
    QStringList faults;
    const SvgReader reader(path, bytes);
    for (const SvgFault& fault : reader.faults()) {
        const Place& place = fault.place;
        requireEqual(place.path, path, "file of a fault");
        requireEqual(fault.message.isEmpty(), false, "has a fault no message");
        if (place.line > 0 && !(place.line == 1 && place.column == 1))
            requireEqual(lines.value(place.line - 1).mid(place.column - 1, 1), QString("<"), "text at a fault");
        faults += QString("%1:%2 %3 %4").arg(place.line).arg(place.column).arg(int(fault.kind)).arg(fault.message);
    }
    return faults;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString path = "picture.svg";
    const QStringList faults = read(path, bytes);
    requireEqual(read(path, bytes), faults, "faults, read again");
    return 0;
}
