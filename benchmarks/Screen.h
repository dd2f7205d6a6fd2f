#pragma once

#include "tests/support/TestProcess.h"

namespace Benchmarks
{

/// An X screen that is the display of this process and its children. Create it before the application.
struct Screen {
    Screen()
    {
        qputenv("DISPLAY", ':' + server.firstLine().toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("QT_QUICK_BACKEND", "software");
    }

    Tests::TestProcess server{"Xvfb",
                              {"-displayfd", "1", "-dpi", "96", "-screen", "0", "1280x800x24", "-nolisten", "tcp"}};
};

} // namespace Benchmarks
