#pragma once

#include <QByteArray>

namespace Gallery
{

class Catalog;

/// Every lookup of the pages with its answer, as indented JSON. TarnisUi must be published.
QByteArray dump(const Catalog& catalog);

} // namespace Gallery
