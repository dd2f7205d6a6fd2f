#pragma once

#include <QByteArray>

class ResourceNames;
class UiResources;

/// Every lookup of the page with its answer, as indented JSON.
QByteArray dump(const UiResources& resources, const ResourceNames& names);
