#pragma once

#include "ResourceCheck/qml/QmlUses.h"
#include "ResourceCheck/reading/Resources.h"

#include <QPair>
#include <QStringList>
#include <QVector>

#include <optional>

/// All that the rules look at.
struct Project {
    Resources resources;
    std::optional<QmlUses> qml;
    /// Names of text colour and background, each `Group/Key`, beside those that are pairs by convention.
    QVector<QPair<QString, QString>> contrastPairs;
    /// Wildcards of resources that count as used.
    QStringList kept;
};
