#pragma once

#include <QByteArray>

namespace ResourceCheck
{

struct Settings;

/// The settings as a file `.tarnis-check.ini` with comments that explain each of them.
QByteArray configOutput(const Settings& settings);

} // namespace ResourceCheck
