#include "Gallery/Dump.h"
#include "Gallery/ExitStatus.h"
#include "Gallery/Options.h"
#include "Gallery/PictureCommands.h"
#include "Gallery/Session.h"
#include "Gallery/compare/ReportCommand.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace Gallery;

namespace
{

constexpr int firstFrameMilliseconds = 400; // for a first frame with resources; a window without them opens after it
constexpr int answerMilliseconds = 10000;   // longer than a call to the service may last

// Qt ends the process when there is no display. This handler reports it in a sentence first.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg) {
        fail(Failure, QStringLiteral("no display to draw on; set DISPLAY, or use --dump, which needs none. ") + text);
        std::_Exit(Failure);
    }
    std::fprintf(stderr, "%s\n", qPrintable(text));
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
    auto* const window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    return PictureCommands::takeScreenshots(*window, session, options);
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
        return PictureCommands::takeContactSheet(session, options);
    if (!options.isDump)
        return show(session, options);
    std::fputs(dump(session.catalogs).constData(), stdout);
    return session.ui.problem().isEmpty() ? Success : Failure;
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
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    qInstallMessageHandler(endWithoutDisplay);
    int nameOnly = 1; // Qt would take --display for one of its own options
    const QGuiApplication application(nameOnly, argv);
    qInstallMessageHandler(nullptr);
    QGuiApplication::setApplicationVersion(QStringLiteral(TARNIS_VERSION));

    Options options;
    const QString wrongUsage = options.parse(argc, argv);
    if (!wrongUsage.isEmpty())
        return fail(WrongUsage, wrongUsage);
    return options.report.isEmpty() ? run(options) : writeReport(options);
}
