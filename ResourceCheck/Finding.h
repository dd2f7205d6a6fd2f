#pragma once

#include "ResourceCheck/Severity.h"
#include "ResourceCheck/fix/Replacement.h"
#include "ResourceCheck/reading/Place.h"

#include <QString>
#include <QVector>

#include <optional>

namespace ResourceCheck
{

/// One fault that a rule has found.
struct Finding {
    QString rule;
    Severity severity;
    Place place;
    QString message;
    QString fingerprint{};            // set by addFingerprints()
    std::optional<bool> isAccepted{}; // by the baseline, if there is one
    QVector<Replacement> repairs{};   // at most one; set by Patches::addRepairs()
};

} // namespace ResourceCheck
