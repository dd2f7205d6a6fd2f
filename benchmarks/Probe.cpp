// Does one thing COUNT times between two marks, so that strace and callgrind count its cost: Probe SUBJECT COUNT
// [SHIFT] SHIFT moves the heap by that many bytes.
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "benchmarks/Icons.h"

#include <KIconLoader>
#include <KIconTheme>

#include <QGuiApplication>
#include <QIcon>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <string>

#include <unistd.h>

using namespace Benchmarks;

namespace
{

// Callgrind collects within this function; a write to nowhere marks its begin and end for strace.
[[gnu::noinline]] void measured(const std::function<void(int)>& subject, int count)
{
    [[maybe_unused]] auto begin = write(-1, "begin", 5);
    for (int index = 0; index < count; ++index)
        subject(index);
    [[maybe_unused]] auto end = write(-1, "end", 3);
}

void coldQIcon(const QString& name)
{
    QIcon::setThemeSearchPaths({breezeIcons});
    QIcon::setThemeName(QStringLiteral("breeze"));
    [[maybe_unused]] const bool isNull = QIcon::fromTheme(name).isNull(); // looks for the file
}

std::map<std::string, std::function<void(int)>> makeSubjects()
{
    static const TarnisColorHandler colors(RESOURCES "/colors.ini", nullptr);
    static const TarnisFontHandler fonts(RESOURCES "/fonts.ini", nullptr);
    // The cost of a path depends on its length, and must not depend on where the repository is.
    static const QTemporaryDir directory(QStringLiteral("/tmp/tarnis-XXXXXX"));
    QFile::link(breezeIcons, directory.filePath(QStringLiteral("icons")));
    static const TarnisIconHandler icons(directory.filePath(QStringLiteral("icons")), readBreezeTable());
    static TarnisElementDimensionHandler dimensions({{QSize(1280, 800), RESOURCES "/dimensions/1280x800.ini"},
                                                     {QSize(800, 480), RESOURCES "/dimensions/800x480.ini"}});
    static const Icon icon = readIcons().constFirst();
    static const KIconLoader loader;
    static const QString day = "Day";
    static const QString accent = "Accent";
    static const QString unknown = "NoSuchName";
    static const QString text = "Text";
    static const QString normal = "Normal";
    return {
        {"getColor", [](int) { colors.getColor(day, accent); }},
        {"getColor-miss", [](int) { colors.getColor(day, unknown); }},
        {"getFontFamily", [](int) { fonts.getFontFamily(text); }},
        {"getFontPointSize", [](int) { fonts.getFontPointSize(text, normal); }},
        {"getIconPath", [](int) { icons.getIconPath(icon.alias); }},
        {"getIconPathAsFileUrl", [](int) { icons.getIconPathAsFileUrl(icon.alias); }},
        {"geometry-event", [](int index) { dimensions.onScreenGeometryChanged(QRect(index, 0, 1280, 800)); }},
        {"uiElementDimensions", [](int) { dimensions.property("uiElementDimensions"); }},
        {"QFile-exists", [](int) { QFile::exists(icon.path); }},
        {"QIcon-warm", [](int) { [[maybe_unused]] const bool isNull = QIcon::fromTheme(icon.name).isNull(); }},
        {"QIcon-cold", [](int) { coldQIcon(icon.name); }},
        {"KIconLoader-warm", [](int) { loader.iconPath(icon.name, KIconLoader::Toolbar, true); }},
        {"KIconLoader-cold", [](int) { KIconLoader().iconPath(icon.name, KIconLoader::Toolbar, true); }},
    };
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArray shift(argc == 4 ? QByteArray(argv[3]).toInt() : 0, '-');
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    KIconTheme::forceThemeForTests("breeze");
    QIcon::setThemeSearchPaths({breezeIcons});
    QIcon::setThemeName("breeze");
    const auto subjects = makeSubjects();
    const auto subject = subjects.find(argc >= 3 ? argv[1] : "");
    if (subject == subjects.end())
        qFatal("usage: Probe SUBJECT COUNT [SHIFT]");
    subject->second(0); // reads what is read once
    measured(subject->second, QByteArray(argv[2]).toInt());
    return 0;
}
