#pragma once

#include "Gallery/UiResources.h"

#include <QtQml>

// What tools that read QML are told of the module Tarnis: only what every host offers, and nothing of the gallery's
// own. No program is compiled with this file.

struct QmlUi {
    Q_GADGET
    QML_FOREIGN(UiResources)
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
