#include "Gallery/Dump.h"
#include "Gallery/Options.h"
#include "Gallery/Screenshots.h"
#include "Gallery/Session.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace Gallery;

namespace
{

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

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

int takePictures(QQuickWindow& window, Session& session, const Options& options)
{
    Screenshots screenshots(window, session.view);
    const bool isTaken = options.screenshot.isEmpty()
        ? screenshots.takeAll(options.screenshotDirectory, session.catalog)
        : screenshots.take(options.screenshot);
    if (!isTaken) {
        return fail(Failure,
                    QStringLiteral("cannot draw or write %1").arg(options.screenshot + options.screenshotDirectory));
    }
    const QStringList failedLookups = session.log.takeNew();
    if (!failedLookups.isEmpty())
        return fail(Failure, QStringLiteral("lookups failed:\n") + failedLookups.join(QLatin1Char('\n')));
    return session.view.problem().isEmpty() ? Success : Failure;
}

int show(Session& session, const Options& options)
{
    session.publish();
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/qml/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return fail(Failure, QStringLiteral("the window could not be built"));
    if (options.screenshot.isEmpty() && options.screenshotDirectory.isEmpty())
        return QGuiApplication::exec();
    return takePictures(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), session, options);
}

int run(const Options& options)
{
    Session session(options.language);
    const QString unknownValue = options.check(session);
    if (!unknownValue.isEmpty())
        return fail(WrongUsage, unknownValue);
    View& view = session.view;
    view.setDisplay(options.display);
    view.setPage(options.page);
    view.setContext(options.context);
    const auto reportProblem = [&view] {
        if (!view.problem().isEmpty())
            fail(Failure, view.problem());
    };
    QObject::connect(&view, &View::problemFound, reportProblem);
    reportProblem();
    if (!options.isDump)
        return show(session, options);
    std::fputs(dump(session.resources, session.catalog).constData(), stdout);
    return view.problem().isEmpty() ? Success : Failure;
}

} // namespace

int main(int argc, char* argv[])
{
    if (Options::needsNoDisplay(argc, argv) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        // The handlers still ask for a screen.
        qputenv("QT_QPA_PLATFORM", "minimal");
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
    return wrongUsage.isEmpty() ? run(options) : fail(WrongUsage, wrongUsage);
}
