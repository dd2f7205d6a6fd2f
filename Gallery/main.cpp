#include "Gallery/Catalogue.h"
#include "Gallery/Dump.h"
#include "Gallery/GalleryView.h"
#include "Gallery/MessageLog.h"
#include "Gallery/Options.h"
#include "Gallery/Screenshots.h"
#include "Gallery/UiResources.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

namespace
{

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

int fail(ExitStatus status, const QString& message)
{
    std::fprintf(stderr, "tarnis-gallery: %s\n", qPrintable(message));
    return status;
}

// Qt ends the process when there is no display: it shall say so in a sentence.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg) {
        fail(Failure, QStringLiteral("no display to draw on; set DISPLAY, or use --dump, which needs none. ") + text);
        std::_Exit(Failure);
    }
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

int takePictures(QQuickWindow& window, GalleryView& view, const Catalogue& catalogue, const Options& options,
                 MessageLog& log)
{
    Screenshots screenshots(window, view);
    const bool isTaken = options.screenshot.isEmpty() ? screenshots.takeAll(options.screenshotDirectory, catalogue)
                                                      : screenshots.take(options.screenshot);
    if (!isTaken) {
        return fail(Failure,
                    QStringLiteral("cannot draw or write %1").arg(options.screenshot + options.screenshotDirectory));
    }
    const QStringList failedLookups = log.takeNew();
    if (!failedLookups.isEmpty())
        return fail(Failure, QStringLiteral("lookups failed:\n") + failedLookups.join(QLatin1Char('\n')));
    return view.problem.isEmpty() ? Success : Failure;
}

int show(UiResources& resources, Catalogue& catalogue, GalleryView& view, MessageLog& log, const Options& options)
{
    resources.publish();
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Catalogue", &catalogue);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "View", &view);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Log", &log);
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/qml/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return fail(Failure, QStringLiteral("the window could not be built"));
    if (options.screenshot.isEmpty() && options.screenshotDirectory.isEmpty())
        return QGuiApplication::exec();
    return takePictures(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), view, catalogue, options, log);
}

} // namespace

int main(int argc, char* argv[])
{
    if (Options::needsNoDisplay(argc, argv) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        // The handlers ask for a screen all the same.
        qputenv("QT_QPA_PLATFORM", "minimal");
        qputenv("QT_FONT_DPI", "96");
    }
    // The same picture on every machine, with or without a GPU.
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    qInstallMessageHandler(endWithoutDisplay);
    int nameOnly = 1; // Qt would take --display for one of its own options
    QGuiApplication application(nameOnly, argv);
    qInstallMessageHandler(nullptr);
    QGuiApplication::setApplicationVersion(QStringLiteral(TARNIS_VERSION));

    Options options;
    const QString wrongUsage = options.parse(argc, argv);
    if (!wrongUsage.isEmpty())
        return fail(WrongUsage, wrongUsage);

    MessageLog log;
    UiResources resources(options.language);
    Catalogue catalogue(resources);
    GalleryView view(resources, log);
    const QString unknownValue = options.check(view, catalogue);
    if (!unknownValue.isEmpty())
        return fail(WrongUsage, unknownValue);
    view.setDisplay(options.display);
    view.page = options.page;
    view.context = options.context;
    const auto reportProblem = [&] {
        if (!view.problem.isEmpty())
            fail(Failure, view.problem);
    };
    QObject::connect(&view, &GalleryView::problemFound, reportProblem);
    reportProblem();
    if (!options.isDump)
        return show(resources, catalogue, view, log, options);
    std::fputs(dump(resources, catalogue).constData(), stdout);
    return view.problem.isEmpty() ? Success : Failure;
}
