#include "Gallery/Dump.h"
#include "Gallery/LastGoodSource.h"
#include "Gallery/Options.h"
#include "Gallery/Screenshots.h"
#include "Gallery/Session.h"
#include "Gallery/compare/ContactSheet.h"
#include "Gallery/compare/FrontEndPictures.h"
#include "Gallery/compare/Report.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSaveFile>

#include <cstdio>

using namespace Gallery;

namespace
{

// With --report, 1 means that something has changed.
enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2, Incomplete = 3 };

constexpr int firstFrameMilliseconds = 400; // for a first frame with resources; a window without them opens after it
constexpr int answerMilliseconds = 10000;   // longer than a call to the service may last

int fail(ExitStatus status, const QString& message)
{
    std::fprintf(stderr, "tarnis-gallery: %s\n", qPrintable(message));
    return status;
}

// Qt ends the process when there is no display. This handler reports it in a sentence first.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg) {
        fail(Failure, QStringLiteral("no display to draw on; set DISPLAY, or use --dump, which needs none. ") + text);
        std::_Exit(Failure);
    }
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

// The exit status after pictures were taken, which depends on what was logged meanwhile.
int judgeLookups(Session& session)
{
    const QStringList failedLookups = session.log.takeNew();
    if (!failedLookups.isEmpty())
        return fail(Failure, QStringLiteral("lookups failed:\n") + failedLookups.join(QLatin1Char('\n')));
    return session.ui.problem().isEmpty() ? Success : Failure;
}

int takePictures(QQuickWindow& window, Session& session, const Options& options)
{
    Screenshots screenshots(window, session);
    const bool isTaken = options.screenshot.isEmpty() ? screenshots.takeAll(options.screenshotDirectory)
                                                      : screenshots.take(options.screenshot);
    if (!isTaken) {
        return fail(Failure,
                    QStringLiteral("cannot draw or write %1").arg(options.screenshot + options.screenshotDirectory));
    }
    if (!session.preview.problem().isEmpty())
        return fail(Failure, session.preview.problem());
    return judgeLookups(session);
}

int takeContactSheet(Session& session, const Options& options)
{
    session.log.takeNew(); // what comes after it is of lookups
    FrontEndPictures frontEnd(session.ui, LivePreview::urlOf(options.qmlFile));
    const QString resources = options.directory.isEmpty() ? QStringLiteral("the service") : options.directory;
    ContactSheet sheet(QStringLiteral("%1 with %2").arg(session.preview.name(), resources),
                       session.catalogs.dimensions.displays(), session.catalogs.icons.contexts(),
                       session.ui.languages());
    const QImage picture =
        sheet.draw([&frontEnd](const QString& display, const QString& context, const QString& language) {
            return frontEnd.draw(display, context, language);
        });
    if (!frontEnd.problem().isEmpty())
        return fail(Failure, frontEnd.problem());
    if (!picture.save(options.contactSheet, "PNG"))
        return fail(Failure, QStringLiteral("cannot draw or write %1").arg(options.contactSheet));
    return judgeLookups(session);
}

int show(Session& session, const Options& options)
{
    session.log.takeNew(); // what comes after it is of lookups
    if (!options.isInteractive())
        qputenv("QT_QUICK_CONTROLS_HOVER_ENABLED", "0"); // the pictures do not depend on the place of the pointer
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/qml/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return fail(Failure, QStringLiteral("the window could not be built"));
    if (options.isInteractive()) {
        session.findings.start();
        return QGuiApplication::exec();
    }
    return takePictures(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), session, options);
}

void apply(const Options& options, Session& session)
{
    if (!options.qmlFile.isEmpty())
        session.setFrontEnd(options.qmlFile);
    session.ui.setLanguage(options.language);
    session.view.setDisplay(options.display);
    session.view.setPage(options.page);
    session.view.setContext(options.context);
    session.view.setTheme(options.theme);
    session.view.setWindowSize(options.windowSize);
    session.findings.setEditor(Editor(options.editor));
}

int run(const Options& options)
{
    Session session(options.directory.isEmpty() ? TarnisUi::service(TarnisUi::Files::Followed)
                                                : TarnisUi::directory(options.directory));
    if (!options.oldDirectory.isEmpty())
        session.compareWith(options.oldDirectory);
    apply(options, session);
    const auto reportProblem = [&session] {
        if (!session.ui.problem().isEmpty())
            fail(Failure, session.ui.problem());
    };
    QObject::connect(&session.ui, &TarnisUi::problemChanged, reportProblem);
    session.waitForSource(options.isInteractive() ? firstFrameMilliseconds : answerMilliseconds);
    const auto findUnknownValue = [&options, &session] {
        const QString unknownValue = options.check(session);
        return unknownValue.isNull() ? Success : static_cast<ExitStatus>(fail(WrongUsage, unknownValue));
    };
    if (findUnknownValue() != Success)
        return WrongUsage;
    QObject::connect(&session.ui, &TarnisUi::readyChanged, &session.view, [&findUnknownValue] {
        if (findUnknownValue() != Success)
            QGuiApplication::exit(WrongUsage);
    });
    session.publish();
    if (!options.contactSheet.isEmpty())
        return takeContactSheet(session, options);
    if (!options.isDump)
        return show(session, options);
    std::fputs(dump(session.catalogs).constData(), stdout);
    return session.ui.problem().isEmpty() ? Success : Failure;
}

Snapshot snapshot(const QString& directory)
{
    return Snapshot::of(std::make_unique<LastGoodSource>(TarnisUi::directory(directory)));
}

int compare(const Options& options)
{
    const Comparison comparison(snapshot(options.oldDirectory), snapshot(options.directory));
    for (const QString& problem : comparison.oldSide().problems() + comparison.newSide().problems())
        fail(Incomplete, problem);
    const ScreenComparison screens =
        ScreenComparison::of(options.oldDirectory, options.directory,
                             {LivePreview::urlOf(options.qmlFile), options.context, options.language});
    const Report report(comparison, screens, options.oldDirectory, options.directory);
    const QByteArray html = report.html();
    QSaveFile file(options.report);
    if (!file.open(QIODevice::WriteOnly) || file.write(html) != html.size() || !file.commit())
        return fail(Incomplete, QStringLiteral("cannot write %1: %2").arg(options.report, file.errorString()));
    std::printf("%s\n", qPrintable(comparison.verdict()));
    if (!comparison.isComplete())
        return Incomplete;
    return comparison.changes().isEmpty() ? Success : Failure;
}

} // namespace

int main(int argc, char* argv[])
{
    if (Options::needsNoDisplay(argc, argv) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        // The handlers still ask for a screen, and the report has pictures of the front end if there is a display.
        const bool mayDraw = Options::isReport(argc, argv) && qEnvironmentVariableIsSet("DISPLAY");
        qputenv("QT_QPA_PLATFORM", mayDraw ? "xcb;minimal:enable_fonts" : "minimal:enable_fonts");
        qputenv("QT_FONT_DPI", "96");
    }
    // Draws the same picture on every machine, with or without a GPU.
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    qInstallMessageHandler(endWithoutDisplay);
    int nameOnly = 1; // Qt would take --display for one of its own options
    const QGuiApplication application(nameOnly, argv);
    qInstallMessageHandler(nullptr);
    QGuiApplication::setApplicationVersion(QStringLiteral(TARNIS_VERSION));

    Options options;
    const QString wrongUsage = options.parse(argc, argv);
    if (!wrongUsage.isEmpty())
        return fail(WrongUsage, wrongUsage);
    return options.report.isEmpty() ? run(options) : compare(options);
}
