// A host without the library: prints its private memory, and how long it takes to load LIBRARY: BareHost LIBRARY
#include "benchmarks/PrivateMemory.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>
#include <dlfcn.h>

using namespace Benchmarks;

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const int memory = privateMemory();
    QElapsedTimer timer;
    timer.start();
    if (argc != 2 || dlopen(argv[1], RTLD_NOW) == nullptr)
        qFatal("usage: BareHost LIBRARY: %s", dlerror());
    const qint64 loading = timer.nsecsElapsed();
    std::printf("{\"private_kib\": %d, \"load_ns\": %lld}\n", memory, loading);
    return 0;
}
