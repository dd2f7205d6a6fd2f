#pragma once

#include "ResourceCheck/qml/QmlUses.h"
#include "ResourceCheck/reading/Resources.h"

#include <QPair>
#include <QStringList>
#include <QVector>

#include <optional>

namespace ResourceCheck
{

/// Everything that the rules look at.
struct Project {
    Resources resources;
    std::optional<QmlUses> qml;
    /// Names of a text color and its background, each as `Group/Key`, in addition to the pairs by convention.
    QVector<QPair<QString, QString>> contrastPairs;
    /// Wildcard patterns of the resources that count as used.
    QStringList kept;
    /// The groups of texts, such as `text://Button`, and how many characters their texts can have.
    QVector<QPair<QString, int>> maximumLengths{};
};

} // namespace ResourceCheck
