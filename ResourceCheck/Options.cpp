#include "ResourceCheck/Options.h"

#include "ResourceCheck/output/TextOutput.h"
#include "ResourceCheck/Resolve.h"
#include "ResourceCheck/rules/Rule.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

namespace
{

QCommandLineOption option(const char* name, const char* description, const char* value = "")
{
    return {QLatin1String(name), QLatin1String(description), QLatin1String(value)};
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral(
            "Checks a resource directory for what a device would stumble over. With resolve, prints what the\n"
            "library would answer to a lookup, and how it comes to the answer:\n%1\n"
            "The file .tarnis-check.ini in DIR holds options for everybody: see tarnis-resource-check(1).\n\n"
            "Exit status: 0 no errors; 1 errors found, or no answer; 2 wrong usage or unreadable directory.")
            .arg(resolveUsage()));
    parser.addOptions({
        option("qml", "Also check what the QML files below DIR ask for.", "DIR"),
        option("id", "What QML calls a handler, instead of the usual names.", "NAME=CLASS"),
        option("keep", "Resources that count as used: a pattern with * and ?.", "PATTERN"),
        option("contrast", "Also check the contrast of two colours.", "Group/Text:Group/Background"),
        option("rule", "off, warning or error for a rule.", "NAME=SEVERITY"),
        option("werror", "Warnings are errors."),
        option("format", "text (the default), json or sarif.", "FORMAT"),
        option("summary", "Only count the findings of each rule."),
        option("list-rules", "Print every rule with its severity and reason."),
        option("explain", "Print what a rule is for, and how to silence it.", "RULE"),
    });
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("DIR"), QStringLiteral("The resource directory."),
                                 QStringLiteral("DIR | resolve DIR KIND NAME..."));
}

QString directoryProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isDir())
        return QStringLiteral("no such directory: \"%1\"").arg(path);
    return info.isReadable() && info.isExecutable() ? QString() : QStringLiteral("cannot read \"%1\"").arg(path);
}

[[noreturn]] void printAndLeave(const QByteArray& text)
{
    std::fputs(text.constData(), stdout);
    std::exit(0);
}

} // namespace

QString Options::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return parser.errorText();
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (parser.isSet(QStringLiteral("list-rules")))
        printAndLeave(ruleList());
    const QString explained = parser.value(QStringLiteral("explain"));
    if (const Rule* rule = findRule(explained))
        printAndLeave(explanation(*rule));
    if (parser.isSet(QStringLiteral("explain")))
        return QStringLiteral("unknown rule \"%1\"; --list-rules names those there are").arg(explained);
    for (const QString& problem :
         {readPositional(parser.positionalArguments()), readFormat(parser), readSettings(parser)}) {
        if (!problem.isNull())
            return problem;
    }
    return QString();
}

QString Options::readPositional(const QStringList& arguments)
{
    const bool resolves = !arguments.isEmpty() && arguments.constFirst() == QLatin1String("resolve");
    question = arguments.mid(resolves ? 2 : 1);
    directory = QDir::cleanPath(arguments.value(resolves ? 1 : 0));
    if (directory.isEmpty())
        return QStringLiteral("the resource directory DIR is missing");
    QString problem = directoryProblem(directory);
    if (!problem.isNull() || (question.isEmpty() && !resolves))
        return problem;
    return resolves ? questionProblem(question) : QStringLiteral("unexpected argument \"%1\"").arg(question.first());
}

QString Options::readFormat(const QCommandLineParser& parser)
{
    const QStringList formats{QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")};
    format = parser.values(QStringLiteral("format")).value(0, formats.constFirst());
    if (!formats.contains(format)) {
        return QStringLiteral("unknown format \"%1\"; there are: %2").arg(format, formats.join(QStringLiteral(", ")));
    }
    if (!parser.isSet(QStringLiteral("summary")))
        return QString();
    if (format != formats.constFirst())
        return QStringLiteral("--summary is a text; the format \"%1\" has none").arg(format);
    format = QStringLiteral("summary");
    return QString();
}

// The command line comes last, and wins.
QString Options::readSettings(const QCommandLineParser& parser)
{
    QStringList problems{settings.readFileOf(directory)};
    qmlDirectories = parser.values(QStringLiteral("qml"));
    for (const QString& qmlDirectory : qAsConst(qmlDirectories))
        problems.append(directoryProblem(qmlDirectory));
    for (const QString& rule : parser.values(QStringLiteral("rule")))
        problems.append(settings.setRule(rule.section(QLatin1Char('='), 0, 0), rule.section(QLatin1Char('='), 1)));
    if (parser.isSet(QStringLiteral("id")))
        settings.handlerNames.clear();
    for (const QString& name : {QStringLiteral("id"), QStringLiteral("keep"), QStringLiteral("contrast")}) {
        for (const QString& value : parser.values(name))
            problems.append(settings.setOption(name, value));
    }
    if (parser.isSet(QStringLiteral("werror")))
        settings.warningsAreErrors = true;
    problems.removeAll(QString());
    return problems.value(0);
}
