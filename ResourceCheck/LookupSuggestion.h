#pragma once

#include <QStringList>

namespace ResourceCheck
{

struct Resources;

/// The existing name that is most similar to an unknown one in the question to resolve(); null if there is none.
QString lookupSuggestion(const Resources& resources, const QStringList& question);

} // namespace ResourceCheck
