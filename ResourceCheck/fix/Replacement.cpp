#include "ResourceCheck/fix/Replacement.h"

namespace ResourceCheck
{

Replacement Replacement::of(const LineEdit& edit, const QString& line, bool isLast)
{
    if (edit.isRemoved && !isLast)
        return {edit.line, 1, edit.line + 1, 1, QString()};
    const QString text = edit.isRemoved ? QString() : edit.newText;
    const int shorter = qMin(line.size(), text.size());
    int begin = 0;
    while (begin < shorter && line.at(begin) == text.at(begin))
        ++begin;
    int end = 0;
    while (end < shorter - begin && line.at(line.size() - 1 - end) == text.at(text.size() - 1 - end))
        ++end;
    // Both halves of a surrogate pair change.
    begin -= begin > 0 && line.at(begin - 1).isHighSurrogate() ? 1 : 0;
    end -= end > 0 && line.at(line.size() - end).isLowSurrogate() ? 1 : 0;
    const int lineEnd = static_cast<int>(line.size()) - end + 1;
    return {edit.line, begin + 1, edit.line, lineEnd, text.mid(begin, text.size() - end - begin)};
}

} // namespace ResourceCheck
