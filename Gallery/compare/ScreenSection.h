#pragma once

#include "Gallery/compare/ScreenComparison.h"

#include <QString>

/// The part of the report that shows the front end.
namespace Gallery::ScreenSection
{

QString html(const ScreenComparison& screens);

} // namespace Gallery::ScreenSection
