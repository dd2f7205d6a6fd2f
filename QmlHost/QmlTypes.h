#pragma once

#include "QmlHost/Ui.h"

#include <QtQml>

// Describes the module Tarnis to tools that read QML. This file is not compiled into any program.

namespace QmlHost
{

struct QmlUi {
    Q_GADGET
    QML_FOREIGN(QmlHost::Ui)
    QML_NAMED_ELEMENT(Ui)
    QML_SINGLETON
};

struct QmlColorHandler {
    Q_GADGET
    QML_FOREIGN(TarnisColorHandler)
    QML_ANONYMOUS
};

struct QmlFontHandler {
    Q_GADGET
    QML_FOREIGN(TarnisFontHandler)
    QML_ANONYMOUS
};

struct QmlElementDimensionHandler {
    Q_GADGET
    QML_FOREIGN(TarnisElementDimensionHandler)
    QML_ANONYMOUS
};

struct QmlTextHandler {
    Q_GADGET
    QML_FOREIGN(TarnisTextHandler)
    QML_ANONYMOUS
};

struct QmlIconHandler {
    Q_GADGET
    QML_FOREIGN(TarnisIconHandler)
    QML_ANONYMOUS
};

} // namespace QmlHost
