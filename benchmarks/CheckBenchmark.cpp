// What a build or an editor waits for: the time and the memory that tarnis-resource-check takes, as a program.

#include "tests/support/TestProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace Tests;

namespace
{

constexpr int repetitions = 10;
constexpr int mostIcons = 8000;
constexpr int mostLookups = 20000;
constexpr int lookupsInFile = 40;

struct Cost {
    double seconds;
    double peakMebibytes;
};

// Runs the checker to its end, without its output.
Cost runChecker(QList<QByteArray> arguments)
{
    arguments.prepend(TARNIS_RESOURCE_CHECK);
    std::vector<char*> words;
    for (QByteArray& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    for (const int descriptor : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&files, descriptor, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    const bool isRun = posix_spawn(&child, words.front(), &files, nullptr, words.data(), environ) == 0
        && wait4(child, &status, 0, &usage) == child;
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - begin;
    posix_spawn_file_actions_destroy(&files);
    if (!isRun || !WIFEXITED(status) || WEXITSTATUS(status) > 1) // 1 means that it has found errors
        qFatal("the checker has failed");
    return {duration.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

void measure(benchmark::State& state, const QList<QByteArray>& arguments)
{
    for (auto _ : state) {
        const Cost cost = runChecker(arguments);
        state.SetIterationTime(cost.seconds);
        state.counters["peak_mebibytes"] = cost.peakMebibytes;
    }
}

// A directory with this many icons that are all different.
void icons(benchmark::State& state)
{
    const QTemporaryDir directory;
    const QString path = directory.path() + '/';
    if (run("cp", {"-r", QString(RESOURCES) + "/.", path}).exitStatus != 0)
        qFatal("cannot copy the sample");
    QJsonObject table;
    for (int icon = 0; icon < state.range(0); ++icon) {
        const QString file = QString::number(icon) + ".svg";
        table.insert("icon" + QString::number(icon), QJsonObject{{"defaultContext", file}});
        writeFile(path + "icons/" + file,
                  "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'><path d='M 0 0 H 16 V "
                      + QByteArray::number(icon) + " Z'/></svg>");
    }
    writeFile(path + "icons/mapping.json", QJsonDocument(table).toJson());
    measure(state, {path.toUtf8()});
}

// A front end with this many lookups.
void lookups(benchmark::State& state)
{
    const QTemporaryDir directory;
    const auto count = state.range(0);
    if (run(MAKE_FRONT_END, {directory.path(), QString::number(count / lookupsInFile), QString::number(count)})
            .exitStatus
        != 0)
        qFatal("cannot write the front end");
    measure(state, {RESOURCES, "--qml", directory.path().toUtf8()});
}

template <typename Function>
auto* add(const char* name, Function function)
{
    auto* const registered = benchmark::RegisterBenchmark(name, function);
    return registered->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1)->Repetitions(repetitions);
}

void addSizes(benchmark::internal::Benchmark* registered, int most)
{
    for (int part = 8; part > 0; part /= 2)
        registered->Arg(most / part);
}

} // namespace

int main(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    add("sample", [](benchmark::State& state) { measure(state, {RESOURCES, "--qml", GALLERY_QML}); });
    add("breeze", [](benchmark::State& state) { measure(state, {BREEZE}); });
    addSizes(add("icons", icons), mostIcons);
    addSizes(add("lookups", lookups), mostLookups);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
