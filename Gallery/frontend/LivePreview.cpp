#include "Gallery/frontend/LivePreview.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickWindow>
#include <QScreen>

#include <utility>

namespace Gallery
{

namespace
{

constexpr int lookMilliseconds = 100;

// The page DeviceSettings shows the screen "settings" of the sample front end.
QString screenOf(const QString& page)
{
    const QString screen = page.mid(QStringLiteral("Device").size()).toLower();
    return screen.isEmpty() ? QStringLiteral("home") : screen;
}

} // namespace

struct LivePreview::Version {
    Version(const QUrl& url, const QSize& size, const QVariantMap& properties)
        : frontEnd(url, size, properties)
        , state(frontEnd)
    {
    }

    FrontEnd frontEnd;
    FrontEndState state;
};

LivePreview::LivePreview(TarnisUi& tarnisUi, View& galleryView)
    : ui(tarnisUi)
    , view(galleryView)
    , url(urlOf(QString()))
    , watcher(this)
{
    connect(&watcher, &QmlHost::DirectoryWatcher::changed, this, &LivePreview::reloadIfChanged);
    delay.setSingleShot(true);
    delay.setInterval(lookMilliseconds);
    connect(&delay, &QTimer::timeout, this, &LivePreview::lookAround);
    connect(this, &LivePreview::outdated, this, &LivePreview::reloadIfChanged, Qt::QueuedConnection);
    connect(&view, &View::changed, this, &LivePreview::followView);
    connect(&ui, &TarnisUi::displaySizeChanged, this, &LivePreview::followSize);
    connect(&ui, &TarnisUi::answersChanged, this, &LivePreview::followSize);
    connect(&ui, &TarnisUi::languageChanged, this, &LivePreview::followLanguage);
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (screen != nullptr)
        connect(screen, &QScreen::geometryChanged, this, &LivePreview::followSize);
}

LivePreview::~LivePreview() = default;

QUrl LivePreview::urlOf(const QString& path)
{
    return path.isEmpty() ? QUrl(QStringLiteral("qrc:/qml/device/Main.qml"))
                          : QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

void LivePreview::setFile(const QString& path)
{
    url = urlOf(path);
}

void LivePreview::load()
{
    if (std::exchange(isStarted, true))
        return;
    shownScreen = screenOf(view.page());
    build(false);
}

FrontEnd* LivePreview::frontEnd() const
{
    return version == nullptr ? nullptr : &version->frontEnd;
}

bool LivePreview::isSample() const
{
    return !url.isLocalFile();
}

QString LivePreview::name() const
{
    return isSample() ? QStringLiteral("Sample front end") : url.fileName();
}

QString LivePreview::problem() const
{
    return lastProblem;
}

bool LivePreview::isLoaded() const
{
    return version != nullptr;
}

QSize LivePreview::size() const
{
    return version == nullptr ? QSize() : version->frontEnd.window()->size();
}

void LivePreview::reload()
{
    build(true);
}

void LivePreview::reset()
{
    shownScreen = screenOf(view.page());
    build(false);
}

void LivePreview::build(bool keepsState)
{
    fingerprint = FileRecorder::fingerprint(files);
    const QVariantMap properties{{QStringLiteral("context"), view.context()}, {QStringLiteral("screen"), shownScreen}};
    auto fresh = std::make_unique<Version>(url, ui.displaySize(), properties);
    followFiles(fresh->frontEnd);
    lastProblem = fresh->frontEnd.problem();
    if (lastProblem.isEmpty())
        swap(std::move(fresh), keepsState);
    Q_EMIT changed();
}

void LivePreview::swap(std::unique_ptr<Version> fresh, bool keepsState)
{
    fresh->state.observe();
    if (keepsState && version != nullptr)
        fresh->state.restore(version->state);
    std::swap(version, fresh);
    followLanguage();
    connect(&version->frontEnd, &FrontEnd::sizeChanged, this, &LivePreview::sizeChanged);
    connect(&version->frontEnd, &FrontEnd::drawn, &delay, [this] {
        if (!delay.isActive())
            delay.start();
    });
    Q_EMIT frontEndChanged();
    Q_EMIT sizeChanged();
}

void LivePreview::lookAround()
{
    version->state.observe();
    if (lastProblem.isEmpty())
        followFiles(version->frontEnd);
}

void LivePreview::followFiles(const FrontEnd& frontEnd)
{
    if (frontEnd.files() == files)
        return;
    const QStringList oldFiles = std::exchange(files, frontEnd.files());
    watcher.watchFiles(files); // forgets the changes that it has seen, but not reported
    const bool isOutdated = FileRecorder::fingerprint(oldFiles) != fingerprint;
    fingerprint = isOutdated ? QByteArray() : FileRecorder::fingerprint(files);
    if (isOutdated)
        Q_EMIT outdated();
}

void LivePreview::reloadIfChanged()
{
    if (FileRecorder::fingerprint(files) != fingerprint)
        build(true);
}

void LivePreview::followView()
{
    if (version == nullptr)
        return;
    version->frontEnd.set(QStringLiteral("context"), view.context());
    const bool isDevice = view.page().startsWith(QStringLiteral("Device"));
    const QString screen = screenOf(view.page());
    if (!isDevice || screen == shownScreen)
        return;
    shownScreen = screen;
    version->frontEnd.set(QStringLiteral("screen"), screen);
}

void LivePreview::followSize()
{
    if (version != nullptr)
        version->frontEnd.resize(ui.displaySize());
}

void LivePreview::followLanguage()
{
    if (version != nullptr)
        version->frontEnd.setMirrored(QLocale(ui.language()).textDirection() == Qt::RightToLeft);
}

} // namespace Gallery
