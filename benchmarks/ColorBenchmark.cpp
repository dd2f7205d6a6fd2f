#include "Common/IniTools/IniFileManager.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"

#include <KConfig>
#include <KConfigGroup>

#include <QDebug>
#include <QFile>
#include <QSettings>

#include <benchmark/benchmark.h>
#include <glib.h>

namespace
{

const QString colorFile = QStringLiteral(RESOURCES "/colors.ini");

struct Name {
    QString group;
    QString key;
    QString path;
    QByteArray groupUtf8;
    QByteArray keyUtf8;
};

QVector<Name> readNames()
{
    QVector<Name> names;
    const IniFileManager file(colorFile, nullptr);
    for (const QString& group : file.getGroups()) {
        for (const QString& key : file.getChildKeys(group))
            names.append({group, key, group + '/' + key, group.toUtf8(), key.toUtf8()});
    }
    return names;
}

// Looks up all colors of the sample device in turn.
template <typename Lookup>
void lookUp(benchmark::State& state, Lookup lookup)
{
    const QVector<Name> names = readNames();
    int next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(lookup(names.at(next)));
        if (++next == names.size())
            next = 0;
    }
}

void hitLibrary(benchmark::State& state)
{
    const TarnisColorHandler handler(colorFile, nullptr);
    lookUp(state, [&handler](const Name& name) { return handler.getColor(name.group, name.key); });
}
BENCHMARK(hitLibrary)->Name("hit/library");

void hitHashes(benchmark::State& state)
{
    QHash<QString, QHash<QString, QString>> hashes;
    const IniFileManager file(colorFile, nullptr);
    for (const Name& name : readNames())
        hashes[name.group][name.key] = file.getValueString(name.group, name.key, QString());
    lookUp(state, [&hashes](const Name& name) {
        const auto group = hashes.constFind(name.group);
        if (group == hashes.constEnd() || !group->contains(name.key))
            return QString();
        return hashes.constFind(name.group)->value(name.key);
    });
}
BENCHMARK(hitHashes)->Name("hit/hashes");

void hitQSettings(benchmark::State& state)
{
    const QSettings settings(colorFile, QSettings::IniFormat);
    lookUp(state, [&settings](const Name& name) {
        return settings.contains(name.path) ? settings.value(name.path).toString() : QString();
    });
}
BENCHMARK(hitQSettings)->Name("hit/QSettings");

void hitKConfig(benchmark::State& state)
{
    const KConfig config(colorFile, KConfig::SimpleConfig);
    lookUp(state, [&config](const Name& name) {
        const KConfigGroup group(&config, name.group);
        return group.hasKey(name.key) ? group.readEntry(name.key, QString()) : QString();
    });
}
BENCHMARK(hitKConfig)->Name("hit/KConfig");

void hitGKeyFile(benchmark::State& state)
{
    QFile source(colorFile);
    source.open(QIODevice::ReadOnly);
    QByteArray content = source.readAll().replace("\n;", "\n#"); // GKeyFile accepts only # comments
    content.replace(0, 1, "#");
    GKeyFile* file = g_key_file_new();
    if (!g_key_file_load_from_data(file, content.constData(), gsize(content.size()), G_KEY_FILE_NONE, nullptr))
        qFatal("GKeyFile cannot read the colors");
    lookUp(state, [file](const Name& name) {
        gchar* value = nullptr;
        if (g_key_file_has_key(file, name.groupUtf8.constData(), name.keyUtf8.constData(), nullptr))
            value = g_key_file_get_value(file, name.groupUtf8.constData(), name.keyUtf8.constData(), nullptr);
        g_free(value);
        return value != nullptr;
    });
    g_key_file_free(file);
}
BENCHMARK(hitGKeyFile)->Name("hit/GKeyFile");

// The message handler does nothing, so that only the creation of the record is measured.
template <typename Lookup>
void miss(benchmark::State& state, Lookup lookup)
{
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { benchmark::DoNotOptimize(text.constData()); });
    const QString group = QStringLiteral("Day");
    const QString key = QStringLiteral("NoSuchColor");
    for (auto _ : state)
        benchmark::DoNotOptimize(lookup(group, key));
    qInstallMessageHandler(nullptr);
}

void missLibrary(benchmark::State& state)
{
    const TarnisColorHandler handler(colorFile, nullptr);
    miss(state, [&handler](const QString& group, const QString& key) { return handler.getColor(group, key); });
}
BENCHMARK(missLibrary)->Name("miss/library");

void missWarning(benchmark::State& state)
{
    miss(state, [](const QString& group, const QString& key) {
        qWarning() << "No color for key" << key << "in group" << group << "!";
        return QLatin1String("");
    });
}
BENCHMARK(missWarning)->Name("miss/warning");

} // namespace
