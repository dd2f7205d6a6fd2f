#include "Gallery/Options.h"

#include "Gallery/Catalogue.h"
#include "Gallery/GalleryView.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace
{

QString unknown(const char* what, const QString& value, const QStringList& known)
{
    // Without any known value the service is not there, which is said elsewhere.
    if (known.isEmpty() || known.contains(value))
        return QString();
    return QStringLiteral("unknown %1 \"%2\"; there are: %3")
        .arg(QLatin1String(what), value, known.join(QStringLiteral(", ")));
}

} // namespace

bool Options::needsNoDisplay(int argc, char* argv[])
{
    return std::any_of(argv, argv + argc, [](const char* argument) {
        return QStringList{QStringLiteral("--dump"), QStringLiteral("--help"), QStringLiteral("--version")}.contains(
            QString::fromLocal8Bit(argument));
    });
}

QString Options::parse(int argc, char* argv[])
{
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows what a device's front end would be given by the service Module.Tarnis on the system bus, and follows "
        "the files of its resources.\n\n"
        "Exit status: 0 success; 1 the service, the display or a lookup failed; 2 wrong usage."));
    const QString name = QStringLiteral("NAME");
    const QCommandLineOption languageOption(QStringLiteral("language"), QStringLiteral("The language of the texts."),
                                            name, QStringLiteral("en"));
    const QCommandLineOption contextOption(QStringLiteral("context"), QStringLiteral("The context of the icons."), name,
                                           TarnisIconHandler::defaultContextPathKey);
    const QCommandLineOption displayOption(QStringLiteral("display"),
                                           QStringLiteral("A supported display size, instead of the one nearest to the "
                                                          "screen."),
                                           QStringLiteral("WxH"));
    const QCommandLineOption pageOption(QStringLiteral("page"), QStringLiteral("The page to begin with."), name,
                                        QStringLiteral("Device"));
    const QCommandLineOption screenshotOption(QStringLiteral("screenshot"),
                                              QStringLiteral("Draw the page, write its picture and leave."),
                                              QStringLiteral("FILE.png"));
    const QCommandLineOption allOption(QStringLiteral("screenshot-all"),
                                       QStringLiteral("Write every page in every display size and language as "
                                                      "PAGE-WxH-LANGUAGE.png and leave."),
                                       QStringLiteral("DIR"));
    const QCommandLineOption dumpOption(QStringLiteral("dump"),
                                        QStringLiteral("Print every lookup with its answer as JSON and leave. Needs no "
                                                       "display: unless QT_QPA_PLATFORM names another, the screen is "
                                                       "one of 240x320 pixels and 96 dots per inch."));
    parser.addOptions(
        {languageOption, contextOption, displayOption, pageOption, screenshotOption, allOption, dumpOption});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(arguments))
        return parser.errorText();
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
    language = parser.value(languageOption);
    context = parser.value(contextOption);
    display = parser.value(displayOption);
    page = parser.value(pageOption);
    screenshot = parser.value(screenshotOption);
    screenshotDirectory = parser.value(allOption);
    isDump = parser.isSet(dumpOption);
    return QString();
}

QString Options::check(const GalleryView& view, const Catalogue& catalogue) const
{
    const QString wrongPage = unknown("page", page, view.pages);
    const QString wrongLanguage = unknown("language", language, catalogue.property("languages").toStringList());
    const QString wrongContext = unknown("context", context, catalogue.property("contexts").toStringList());
    const QString wrongDisplay =
        display.isEmpty() ? QString() : unknown("display size", display, catalogue.property("displays").toStringList());
    for (const QString& message : {wrongPage, wrongLanguage, wrongContext, wrongDisplay}) {
        if (!message.isEmpty())
            return message;
    }
    return QString();
}
