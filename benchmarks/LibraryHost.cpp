// A host with the library's handlers on the sample resources: prints its private memory.
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "benchmarks/PrivateMemory.h"

#include <QGuiApplication>

#include <cstdio>

using namespace Benchmarks;

namespace
{

QString read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const TarnisColorHandler colors(RESOURCES "/colors.ini", nullptr);
    const TarnisFontHandler fonts(RESOURCES "/fonts.ini", nullptr);
    const TarnisElementDimensionHandler dimensions({{QSize(1280, 800), RESOURCES "/dimensions/1280x800.ini"}});
    const TarnisIconHandler icons(RESOURCES "/icons", read(RESOURCES "/icons/mapping.json"));
    const TextManager textManager(RESOURCES "/texts", "de");
    const TarnisTextHandler texts(textManager);
    std::printf("{\"private_kib\": %d}\n", privateMemory());
    return 0;
}
