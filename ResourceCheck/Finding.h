#pragma once

#include "ResourceCheck/Severity.h"
#include "ResourceCheck/reading/Place.h"

#include <QString>

namespace ResourceCheck
{

/// One fault that a rule has found.
struct Finding {
    QString rule;
    Severity severity;
    Place place;
    QString message;
};

} // namespace ResourceCheck
