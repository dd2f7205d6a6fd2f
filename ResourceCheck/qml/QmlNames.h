#pragma once

#include "ResourceCheck/qml/QmlFault.h"

#include <QVector>

namespace ResourceCheck
{

/// How well the names in QML are known.
struct QmlNames {
    int count = 0;                    // of the names in the code: one for each lookup, two for an icon with a context
    QVector<QmlFault> undeterminable; // those that depend on values at run time and that no comment declares
};

} // namespace ResourceCheck
