#include "TarnisModule/Log.h"

#include <algorithm>
#include <cstdio>

namespace TarnisModule::Log
{

void write(QString message)
{
    std::replace_if(
        message.begin(), message.end(), [](QChar character) { return character.category() == QChar::Other_Control; },
        QLatin1Char('?'));
    std::fprintf(stderr, "tarnis-module: %s\n", qPrintable(message));
}

} // namespace TarnisModule::Log
