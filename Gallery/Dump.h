#pragma once

#include <QByteArray>

namespace Gallery
{

struct Catalogs;

/// Every lookup of the pages with its answer, as indented JSON. TarnisUi must be published.
QByteArray dump(const Catalogs& catalogs);

} // namespace Gallery
