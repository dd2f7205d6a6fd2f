#pragma once

#include "ResourceCheck/reading/Place.h"

namespace ResourceCheck
{

/// What Qt Svg does not draw as its author intended. Each kind is a rule.
struct SvgFault {
    enum class Kind { Syntax, Reference, Bomb, Path, Structure, Image, Ignored, Size, Empty, External, Script };

    Kind kind;
    qint64 offset; // in characters, behind the element; 0 means the whole file
    QString message;
    Place place{};
};

} // namespace ResourceCheck
