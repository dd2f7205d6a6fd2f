#pragma once

#include <QByteArray>

namespace Gallery
{

class Catalog;
class UiResources;

/// Every lookup of the pages with its answer, as indented JSON.
QByteArray dump(const UiResources& resources, const Catalog& catalog);

} // namespace Gallery
