// What a designer waits for: the time until a picture of the gallery is on the screen.

#include "benchmarks/MarkedResources.h"
#include "benchmarks/Screen.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <QScreen>

#include <benchmark/benchmark.h>

using namespace Tests;
using Benchmarks::MarkedResources;

namespace
{

constexpr int repetitions = 10;
constexpr int mostMilliseconds = 30000;
constexpr int restMilliseconds = 500;    // after the start, until everything is drawn
constexpr int reportMilliseconds = 5500; // a service that hangs is reported after 5 s

using Condition = std::function<bool(const QImage& screen)>;

// A color that no other file and no earlier call has used.
QColor newColor()
{
    static int count = 0;
    ++count;
    return {254, count / 256, count % 256};
}

Condition shows(const QColor& color)
{
    return [color](const QImage& screen) { return countPixels(screen, color.rgb()) > 20; };
}

// The screen of the server is black until there is a window.
bool showsWindow(const QImage& screen)
{
    return countPixels(screen, 0) < screen.width() * screen.height() / 2;
}

// Takes the time since its construction.
class Stopwatch
{
public:
    Stopwatch() { timer.start(); }

    // Returns the seconds until the screen meets the condition.
    double waitFor(const Condition& isMet) const
    {
        while (!isMet(QGuiApplication::primaryScreen()->grabWindow(0).toImage())) {
            if (timer.hasExpired(mostMilliseconds))
                qFatal("the gallery does not show what is measured");
            QThread::msleep(2);
        }
        return seconds();
    }

    double seconds() const { return static_cast<double>(timer.nsecsElapsed()) / 1e9; }

private:
    QElapsedTimer timer;
};

const MarkedResources& sample()
{
    static const MarkedResources resources(RESOURCES);
    return resources;
}

const MarkedResources& breeze()
{
    static const MarkedResources resources(BREEZE);
    return resources;
}

void firstPicture(benchmark::State& state)
{
    const QColor color = newColor();
    breeze().paintIcon(color);
    for (auto _ : state) {
        GalleryFixture gallery;
        const Stopwatch stopwatch;
        gallery.startGallery(breeze().path(), "Icons");
        state.SetIterationTime(stopwatch.waitFor(shows(color)));
    }
}

void savedColor(benchmark::State& state, const MarkedResources& resources)
{
    for (auto _ : state) {
        GalleryFixture gallery;
        const QColor before = newColor();
        const QColor after = newColor();
        resources.paintColor(before);
        gallery.startGallery(resources.path(), "Colors");
        Stopwatch().waitFor(shows(before));
        QThread::msleep(restMilliseconds);
        const Stopwatch stopwatch;
        resources.paintColor(after);
        state.SetIterationTime(stopwatch.waitFor(shows(after)));
    }
}

void windowWhileTheServiceHangs(benchmark::State& state)
{
    for (auto _ : state) {
        GalleryFixture gallery;
        gallery.startModule(sample().path());
        gallery.signalModule(SIGSTOP);
        const Stopwatch stopwatch;
        gallery.startGallery(QString(), "Colors");
        state.SetIterationTime(stopwatch.waitFor(showsWindow));
    }
}

void recoveryOfTheService(benchmark::State& state)
{
    for (auto _ : state) {
        GalleryFixture gallery;
        const QColor color = newColor();
        sample().paintColor(color);
        gallery.startModule(sample().path());
        gallery.signalModule(SIGSTOP);
        gallery.startGallery(QString(), "Colors");
        QThread::msleep(reportMilliseconds);
        const Stopwatch stopwatch;
        gallery.signalModule(SIGCONT);
        state.SetIterationTime(stopwatch.waitFor(shows(color)));
    }
}

// Returns the seconds between the choice of the page and its first frame. The event loop stands still meanwhile.
double switchPage(GalleryWindow& gallery, const QString& page)
{
    QSignalSpy frames(gallery.window, &QQuickWindow::frameSwapped);
    const Stopwatch stopwatch;
    gallery.session.view.setPage(page);
    while (frames.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return stopwatch.seconds();
}

// Each page for the first time; the slowest one counts.
void pageSwitchWhileTheServiceHangs(benchmark::State& state)
{
    for (auto _ : state) {
        GalleryFixture service;
        service.startModule(sample().path());
        GalleryWindow gallery(TarnisUi::service(TarnisUi::Files::Followed));
        if (!gallery.session.ui.waitUntilReady(mostMilliseconds))
            qFatal("no answer");
        service.signalModule(SIGSTOP);
        gallery.session.view.reload();
        QTest::qWait(restMilliseconds);
        double longest = 0;
        for (const QString& page : gallery.session.view.pages()) {
            if (page != gallery.session.view.page())
                longest = qMax(longest, switchPage(gallery, page));
        }
        state.SetIterationTime(longest);
    }
}

template <typename Function>
void add(const char* name, Function function)
{
    auto* const registered = benchmark::RegisterBenchmark(name, function);
    registered->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1)->Repetitions(repetitions);
}

} // namespace

int main(int argc, char* argv[])
{
    const Benchmarks::Screen screen;
    const QTemporaryDir temporary; // killed programs leave their temporary files
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));
    const PrivateBus bus;
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    add("first picture", firstPicture);
    add("saved color/sample", [](benchmark::State& state) { savedColor(state, sample()); });
    add("saved color/breeze", [](benchmark::State& state) { savedColor(state, breeze()); });
    add("window", windowWhileTheServiceHangs);
    add("page switch", pageSwitchWhileTheServiceHangs);
    add("recovery", recoveryOfTheService);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
