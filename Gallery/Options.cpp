#include "Gallery/Options.h"

#include "Gallery/Session.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/Language.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace Gallery
{

namespace
{

struct Parser : QCommandLineParser {
    Parser()
    {
        setApplicationDescription(QStringLiteral(
            "Shows the resources of a device's front end and follows the changes of their files. They are those of "
            "the directory DIR or, without DIR, those that the service Module.Tarnis on the system bus provides.\n\n"
            "Exit status: 0 success; 1 the resources, the display or a lookup failed; 2 wrong usage; 3 a page was not "
            "complete after 10 s, and its picture shows it as it was. With --report: "
            "0 nothing has changed; 1 something has changed; 2 wrong usage; 3 something could not be read or the "
            "report not be written."));
        addPositionalArgument(QStringLiteral("DIR"),
                              QStringLiteral("Resource directory to show. It needs no bus and no service."),
                              QStringLiteral("[DIR]"));
        addOptions({qml, language, context, display, page, theme, size, editor, screenshot, screenshotAll, dump});
        addOptions({contactSheet, compare, report});
    }

    const QString name = QStringLiteral("NAME");
    const QCommandLineOption qml{QStringLiteral("qml"),
                                 QStringLiteral("Front end to show on the page Device instead of the sample. It is "
                                                "loaded again whenever one of its files changes."),
                                 QStringLiteral("FILE")};
    const QCommandLineOption language{QStringLiteral("language"), QStringLiteral("Text language."), name,
                                      ResourceFormat::Language::secondFallback()};
    const QCommandLineOption context{QStringLiteral("context"), QStringLiteral("Icon context."), name,
                                     TarnisIconHandler::defaultContextPathKey};
    const QCommandLineOption display{
        QStringLiteral("display"),
        QStringLiteral("Supported display size to use instead of the one nearest to the screen."),
        QStringLiteral("WxH")};
    const QCommandLineOption page{QStringLiteral("page"), QStringLiteral("First page to show."), name,
                                  QStringLiteral("Device")};
    const QCommandLineOption theme{QStringLiteral("theme"), QStringLiteral("Look of the gallery: light or dark."), name,
                                   View::themes().constFirst()};
    const QCommandLineOption size{
        QStringLiteral("size"),
        QStringLiteral("Size of the window in pixels, instead of the one that suits the screen."),
        QStringLiteral("WxH")};
    const QCommandLineOption screenshot{QStringLiteral("screenshot"),
                                        QStringLiteral("Write a picture of the page and exit."),
                                        QStringLiteral("FILE.png")};
    const QCommandLineOption screenshotAll{
        QStringLiteral("screenshot-all"),
        QStringLiteral("Write every page in every display size and language as PAGE-WxH-LANGUAGE.png and exit."),
        QStringLiteral("DIR")};
    const QCommandLineOption dump{
        QStringLiteral("dump"),
        QStringLiteral("Print every lookup with its answer as JSON and exit. Needs no display: unless QT_QPA_PLATFORM "
                       "is set, the screen is one of 240x320 pixels and 96 dots per inch.")};
    const QCommandLineOption editor{
        QStringLiteral("editor"),
        QStringLiteral("Program that opens a file from the page Findings, with {file}, {line} and {column}; "
                       "the default is the program of the desktop."),
        QStringLiteral("COMMAND")};
    const QCommandLineOption contactSheet{
        QStringLiteral("contact-sheet"),
        QStringLiteral("Write one picture of the front end in every display size, icon context and language and exit."),
        QStringLiteral("FILE.png")};
    const QCommandLineOption compare{QStringLiteral("compare"),
                                     QStringLiteral("Compare DIR, the new state, with OTHER_DIR, the old one."),
                                     QStringLiteral("OTHER_DIR")};
    const QCommandLineOption report{
        QStringLiteral("report"),
        QStringLiteral("With --compare: write the differences as one HTML file and exit. The pictures of the front "
                       "end need a display, all others do not."),
        QStringLiteral("FILE.html")};
    const QCommandLineOption help = addHelpOption();
    const QCommandLineOption version = addVersionOption();
};

QString unknown(const char* what, const QString& value, const QStringList& known)
{
    // Nothing is known without an answer, which is reported elsewhere.
    if (known.isEmpty() || known.contains(value))
        return QString();
    return QStringLiteral("unknown %1 \"%2\"; use one of: %3")
        .arg(QLatin1String(what), value, known.join(QStringLiteral(", ")));
}

// Whether one of the options is given, with or without a value behind "=".
bool contains(int argc, char* argv[], std::initializer_list<const char*> options)
{
    return std::any_of(argv, argv + argc, [options](const char* argument) {
        const QByteArray name = QByteArray(argument).split('=').constFirst();
        return std::find(options.begin(), options.end(), name) != options.end();
    });
}

} // namespace

bool Options::needsNoDisplay(int argc, char* argv[])
{
    return contains(argc, argv, {"--dump", "--help", "--version"}) || isReport(argc, argv);
}

bool Options::isReport(int argc, char* argv[])
{
    return contains(argc, argv, {"--report"});
}

QString Options::parse(int argc, char* argv[])
{
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    Parser parser;
    if (!parser.parse(arguments))
        return parser.errorText();
    if (parser.isSet(parser.help))
        parser.showHelp();
    if (parser.isSet(parser.version))
        parser.showVersion();
    const QStringList directories = parser.positionalArguments();
    if (directories.size() > 1)
        return QStringLiteral("unexpected argument \"%1\"; name one directory").arg(directories.at(1));
    directory = directories.value(0);
    qmlFile = parser.value(parser.qml);
    if (parser.isSet(parser.qml) && !QFileInfo(qmlFile).isFile())
        return QStringLiteral("\"%1\" is not a file; name the QML file of a front end").arg(qmlFile);
    language = parser.value(parser.language);
    context = parser.value(parser.context);
    display = parser.value(parser.display);
    page = parser.value(parser.page);
    theme = parser.value(parser.theme);
    if (!View::themes().contains(theme))
        return unknown("theme", theme, View::themes());
    windowSize = ResourceFormat::DisplaySize::fromName(parser.value(parser.size));
    if (parser.isSet(parser.size) && !windowSize.isValid())
        return QStringLiteral("\"%1\" is not a window size; write it as 1280x800").arg(parser.value(parser.size));
    screenshot = parser.value(parser.screenshot);
    screenshotDirectory = parser.value(parser.screenshotAll);
    editor = parser.value(parser.editor);
    isDump = parser.isSet(parser.dump);
    contactSheet = parser.value(parser.contactSheet);
    oldDirectory = parser.value(parser.compare);
    report = parser.value(parser.report);
    if (!report.isEmpty() && (oldDirectory.isEmpty() || directory.isEmpty()))
        return QStringLiteral("--report needs two directories; use: DIR --compare OTHER_DIR --report FILE.html");
    return QString();
}

QString Options::check(const Session& session) const
{
    const Catalogs& catalogs = session.catalogs;
    const QString wrongPage = unknown("page", page, session.view.pages());
    const QStringList languages = catalogs.texts.languages() + catalogs.texts.pseudoLanguages();
    const QString wrongLanguage = unknown("language", language, languages);
    const QString wrongContext = unknown("context", context, catalogs.icons.contexts());
    const QString wrongDisplay =
        display.isEmpty() ? QString() : unknown("display size", display, catalogs.dimensions.displays());
    for (const QString& message : {wrongPage, wrongLanguage, wrongContext, wrongDisplay}) {
        if (!message.isEmpty())
            return message;
    }
    return QString();
}

bool Options::isInteractive() const
{
    return !isDump && screenshot.isEmpty() && screenshotDirectory.isEmpty() && contactSheet.isEmpty();
}

} // namespace Gallery
