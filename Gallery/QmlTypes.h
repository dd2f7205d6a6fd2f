#pragma once

#include "Gallery/UiResources.h"

#include <QtQml>

// Describes the module Tarnis to tools that read QML: only what every host offers, nothing of the gallery's own. This
// file is not compiled into any program.

namespace Gallery
{

struct QmlUi {
    Q_GADGET
    QML_FOREIGN(Gallery::UiResources)
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

} // namespace Gallery
