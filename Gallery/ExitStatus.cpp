#include "Gallery/ExitStatus.h"

#include <cstdio>

namespace Gallery
{

int fail(ExitStatus status, const QString& message)
{
    std::fprintf(stderr, "tarnis-gallery: %s\n", qPrintable(message));
    return status;
}

} // namespace Gallery
