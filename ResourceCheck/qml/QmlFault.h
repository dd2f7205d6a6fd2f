#pragma once

#include "ResourceCheck/reading/Place.h"

namespace ResourceCheck
{

/// Something that is wrong in the QML code, and what to do.
struct QmlFault {
    Place place;
    QString message;
};

} // namespace ResourceCheck
