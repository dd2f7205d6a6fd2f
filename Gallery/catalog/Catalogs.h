#pragma once

#include "Gallery/catalog/ColorCatalog.h"
#include "Gallery/catalog/DimensionCatalog.h"
#include "Gallery/catalog/FontCatalog.h"
#include "Gallery/catalog/IconCatalog.h"
#include "Gallery/catalog/TextCatalog.h"

namespace Gallery
{

/// One catalog of each kind.
struct Catalogs {
    /// `tarnisUi` must outlive the catalogs.
    explicit Catalogs(const TarnisUi& tarnisUi)
        : colors(tarnisUi)
        , texts(tarnisUi)
        , fonts(tarnisUi, texts)
        , dimensions(tarnisUi)
        , icons(tarnisUi)
    {
    }

    /// Whether a worker thread still reads.
    bool isReading() const { return texts.isReading() || fonts.isReading(); }

    ColorCatalog colors;
    TextCatalog texts;
    FontCatalog fonts;
    DimensionCatalog dimensions;
    IconCatalog icons;
};

} // namespace Gallery
