#pragma once

#include <QFile>

namespace Benchmarks
{

/// The memory that this process does not share with others, in KiB.
inline int privateMemory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read smaps_rollup");
    int sum = 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Private_Clean:") || line.startsWith("Private_Dirty:"))
            sum += line.mid(14).trimmed().split(' ').constFirst().toInt();
    }
    return sum;
}

} // namespace Benchmarks
