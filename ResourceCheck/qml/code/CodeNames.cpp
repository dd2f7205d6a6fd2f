#include "ResourceCheck/qml/code/CodeNames.h"

namespace ResourceCheck
{

int CodeNames::number(const QString& name)
{
    const auto known = numbers.constFind(name);
    if (known != numbers.constEnd())
        return *known;
    names.append(name);
    numbers.insert(name, names.size() - 1);
    return names.size() - 1;
}

} // namespace ResourceCheck
