#include "ResourceCheck/svg/SvgFaults.h"

#include <algorithm>

namespace ResourceCheck
{

void SvgFaults::add(SvgFault::Kind kind, qint64 offset, const QString& message)
{
    list.append({kind, offset, message});
}

void SvgFaults::addOnce(SvgFault::Kind kind, qint64 offset, const QString& key, const QString& message)
{
    const QString identity = QString::number(static_cast<int>(kind)) + key;
    if (!keys.contains(identity))
        add(kind, offset, message);
    keys.insert(identity);
}

QVector<SvgFault> SvgFaults::located(const QString& path, const QByteArray& content) const
{
    QVector<SvgFault> faults = list;
    if (faults.isEmpty())
        return faults;
    std::stable_sort(faults.begin(), faults.end(),
                     [](const SvgFault& left, const SvgFault& right) { return left.offset < right.offset; });
    const QString text = QString::fromUtf8(content);
    int line = 1;
    int lineBegin = 0;
    int lineEnd = text.indexOf(QLatin1Char('\n'));
    for (SvgFault& fault : faults) {
        fault.place.path = path;
        const int end = static_cast<int>(std::min<qint64>(fault.offset, text.size()));
        if (end == 0)
            continue;
        const int begin = std::max(0, static_cast<int>(text.lastIndexOf(QLatin1Char('<'), end - 1)));
        for (; lineEnd >= 0 && lineEnd < begin; ++line) {
            lineBegin = lineEnd + 1;
            lineEnd = text.indexOf(QLatin1Char('\n'), lineBegin);
        }
        fault.place.line = line;
        fault.place.column = begin - lineBegin + 1;
    }
    return faults;
}

} // namespace ResourceCheck
