#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace ResourceCheck
{

/// Numbers for the names in QML code, which are compared more often than they are shown.
class CodeNames
{
public:
    /// The number of the name. The same name always has the same number.
    int number(const QString& name);

    const QString& name(int number) const { return names.at(number); }

private:
    QHash<QString, int> numbers;
    QStringList names;
};

} // namespace ResourceCheck
