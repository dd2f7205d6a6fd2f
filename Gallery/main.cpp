#include "Gallery/Dump.h"
#include "Gallery/MessageLog.h"
#include "Gallery/ResourceNames.h"
#include "Gallery/UiResources.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>
#include <cstring>

namespace
{

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

int fail(ExitStatus status, const QString& message)
{
    std::fprintf(stderr, "tarnis-gallery: %s\n", qPrintable(message));
    return status;
}

int showPage(UiResources& resources, ResourceNames& names, MessageLog& log, const QString& screenshot)
{
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Ui", &resources);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Names", &names);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Log", &log);
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{QStringLiteral("showsWholePage"), !screenshot.isEmpty()}});
    engine.load(QUrl(QStringLiteral("qrc:/qml/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return fail(Failure, QStringLiteral("the page could not be built"));
    if (screenshot.isEmpty())
        return QGuiApplication::exec();

    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    const auto takePicture = [&] {
        if (window->grabWindow().save(screenshot))
            QGuiApplication::quit();
        else
            QGuiApplication::exit(fail(Failure, QStringLiteral("cannot write %1").arg(screenshot)));
    };
    QObject::connect(window, &QQuickWindow::frameSwapped, window, takePicture, Qt::QueuedConnection);
    QTimer::singleShot(20000, window, [] {
        QGuiApplication::exit(fail(Failure, QStringLiteral("the window was not drawn within 20 s")));
    });
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    // Without a window no display is needed, but the handlers ask for a screen.
    for (int index = 1; index < argc; ++index) {
        if (std::strcmp(argv[index], "--dump") == 0 && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "minimal");
    }
    // The same picture on every machine, with or without a GPU.
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(TARNIS_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows what a device's front end would be given: every colour, font, dimension, icon and text "
                       "that the service Module.Tarnis offers on the system bus.\n\n"
                       "Exit status: 0 success, 1 failure (with --dump also: the service cannot be reached), "
                       "2 wrong usage."));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Draw the page, write its picture and leave."),
                                        QStringLiteral("FILE.png"));
    const QCommandLineOption dumpOption(
        QStringLiteral("dump"),
        QStringLiteral("Print every lookup with its answer as JSON. Needs no display: unless QT_QPA_PLATFORM names "
                       "another, the screen is one of 240x320 pixels and 96 dots per inch."));
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("The language of the texts (en)."),
                                      QStringLiteral("NAME"), QStringLiteral("en"));
    parser.addOptions({screenshot, dumpOption, language});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(QGuiApplication::arguments()))
        return fail(WrongUsage, parser.errorText());
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty())
        return fail(WrongUsage, QStringLiteral("unexpected argument ") + parser.positionalArguments().constFirst());

    MessageLog log;
    UiResources resources(parser.value(language));
    ResourceNames names(resources);
    const auto reportProblem = [&] {
        if (!resources.problem().isEmpty())
            fail(Failure, resources.problem());
    };
    QObject::connect(&resources, &UiResources::reloaded, reportProblem);
    reportProblem();
    if (!parser.isSet(dumpOption))
        return showPage(resources, names, log, parser.value(screenshot));
    std::fputs(dump(resources, names).constData(), stdout);
    return resources.problem().isEmpty() ? Success : Failure;
}
