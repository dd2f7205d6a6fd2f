#pragma once

#include <QByteArray>

class Catalogue;
class UiResources;

/// Every lookup of the pages with its answer, as indented JSON.
QByteArray dump(const UiResources& resources, const Catalogue& catalogue);
