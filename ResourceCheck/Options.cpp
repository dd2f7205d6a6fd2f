#include "ResourceCheck/Options.h"

#include "ResourceCheck/Resolve.h"
#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/output/ConfigOutput.h"
#include "ResourceCheck/output/RuleOutput.h"
#include "ResourceCheck/rules/Rule.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ResourceCheck
{

namespace
{

QCommandLineOption option(const char* name, const char* description, const char* value = "")
{
    return {QLatin1String(name), QLatin1String(description), QLatin1String(value)};
}

QList<QCommandLineOption> allOptions()
{
    return {
        option("qml", "Also check the lookups of the QML files below DIR.", "DIR"),
        option("id", "The name of a handler in QML; replaces the default names.", "NAME=CLASS"),
        option("keep", "Resources that count as used: a pattern with * and ?.", "PATTERN"),
        option("contrast", "Also check the contrast of two colors.", "Group/Text:Group/Background"),
        option("max-length", "Check the length of the texts of a group, such as text://Button=12.", "GROUP=NUMBER"),
        option("rule", "Set the severity of a rule: off, warning or error.", "NAME=SEVERITY"),
        option("show-unresolved", "List the names in QML that depend on values at run time."),
        option("werror", "Treat warnings as errors."),
        option("baseline", "Accept the findings that FILE lists.", "FILE"),
        option("update-baseline", "Write all findings to the file of --baseline."),
        option("fix", "Repair what has one safe repair before the check."),
        option("dry-run", "With --fix: only print the changes as a diff."),
        option("watch", "Check again after each change and print what has changed."),
        option("format", "The output format: text (the default), json, sarif or gitlab.", "FORMAT"),
        option("summary", "Print only the number of findings of each rule."),
        option("list-rules", "Print all rules with their severities and reasons; as a page with --format markdown."),
        option("list-records", "Print which rule announces which log record of a device, as a Markdown table."),
        option("print-config", "Print the settings of the check as a configuration file."),
        option("explain", "Print the reason of a rule and how to silence it.", "RULE"),
    };
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Checks a resource directory for faults that would otherwise show up only on a device.\n"
                       "\"resolve\" prints what the library answers to a lookup, and why:\n%1\n"
                       "The optional file DIR/.tarnis-check.ini contains options; see tarnis-resource-check(1).\n\n"
                       "Exit status: 0 no errors; 1 errors found, or no answer; 2 wrong usage or unreadable directory.")
            .arg(resolveUsage()));
    parser.addOptions(allOptions());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("DIR"), QStringLiteral("The resource directory."),
                                 QStringLiteral("DIR | resolve DIR KIND NAME..."));
}

QString usageProblem(const QCommandLineParser& parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    QStringList known{QStringLiteral("help"), QStringLiteral("version")};
    for (const QCommandLineOption& one : allOptions())
        known += one.names();
    const QString similar = unknown.isEmpty() ? QString() : Suggestions(known).similarName(unknown.constFirst());
    const QString advice =
        similar.isNull() ? QStringLiteral("see --help") : QStringLiteral("did you mean --%1?").arg(similar);
    return QStringLiteral("%1 %2").arg(parser.errorText(), advice);
}

QString directoryProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isDir())
        return QStringLiteral("\"%1\" is not a directory; correct the path").arg(path);
    const bool isReadable = info.isReadable() && info.isExecutable();
    return isReadable ? QString() : QStringLiteral("cannot read \"%1\"; check its permissions").arg(path);
}

} // namespace

QString Options::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return usageProblem(parser);
    QString problem = readInformation(parser);
    if (!problem.isNull() || !information.isEmpty())
        return problem;
    QStringList problems{readPositional(parser.positionalArguments()), readFormat(parser), readSettings(parser),
                         readActions(parser)};
    problems.removeAll(QString());
    if (problems.isEmpty() && parser.isSet(QStringLiteral("print-config")))
        information = configOutput(settings);
    return problems.value(0);
}

QString Options::readInformation(const QCommandLineParser& parser)
{
    const QString explained = parser.value(QStringLiteral("explain"));
    const Rule* rule = findRule(explained);
    if (parser.isSet(QStringLiteral("help")))
        information = parser.helpText().toUtf8();
    else if (parser.isSet(QStringLiteral("version")))
        information = QStringLiteral("tarnis-resource-check %1\n").arg(QCoreApplication::applicationVersion()).toUtf8();
    else if (parser.isSet(QStringLiteral("list-rules")))
        information = parser.value(QStringLiteral("format")) == QLatin1String("markdown") ? rulePage() : ruleList();
    else if (parser.isSet(QStringLiteral("list-records")))
        information = recordTable();
    else if (rule != nullptr)
        information = explanation(*rule);
    else if (parser.isSet(QStringLiteral("explain")))
        return QStringLiteral("--explain: ") + Settings::unknownRule(explained);
    return QString();
}

QString Options::readPositional(const QStringList& arguments)
{
    const bool resolves = !arguments.isEmpty() && arguments.constFirst() == QLatin1String("resolve");
    question = arguments.mid(resolves ? 2 : 1);
    directory = QDir::cleanPath(arguments.value(resolves ? 1 : 0));
    if (directory.isEmpty())
        return QStringLiteral("the resource directory DIR is missing; add it");
    QString problem = directoryProblem(directory);
    if (!problem.isNull() || (question.isEmpty() && !resolves))
        return problem;
    return resolves ? questionProblem(question)
                    : QStringLiteral("unexpected argument \"%1\"; check one directory at a time").arg(question.first());
}

QString Options::readFormat(const QCommandLineParser& parser)
{
    const QStringList formats{QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif"),
                              QStringLiteral("gitlab")};
    format = parser.values(QStringLiteral("format")).value(0, formats.constFirst());
    if (!formats.contains(format)) {
        const QString list = QStringLiteral("use one of: ") + formats.join(QStringLiteral(", "));
        return QStringLiteral("--format: unknown format \"%1\"; %2")
            .arg(format, Suggestions(formats).advice(format, list));
    }
    const bool isSummary = parser.isSet(QStringLiteral("summary"));
    if (isSummary && format != formats.constFirst())
        return QStringLiteral("--summary: there is no summary in the format \"%1\"; leave out --format").arg(format);
    format = isSummary ? QStringLiteral("summary") : format;
    return QString();
}

// The command line is read after the file, so that it takes precedence.
QString Options::readSettings(const QCommandLineParser& parser)
{
    QStringList problems{settings.readFileOf(directory)};
    const auto addProblem = [&problems](const QString& name, const QString& problem) {
        if (!problem.isNull())
            problems.append(QStringLiteral("--%1: %2").arg(name, problem));
    };
    qmlDirectories = parser.values(QStringLiteral("qml"));
    for (const QString& qmlDirectory : qAsConst(qmlDirectories))
        addProblem(QStringLiteral("qml"), directoryProblem(qmlDirectory));
    for (const QString& rule : parser.values(QStringLiteral("rule"))) {
        addProblem(QStringLiteral("rule"),
                   settings.setRule(rule.section(QLatin1Char('='), 0, 0), rule.section(QLatin1Char('='), 1)));
    }
    if (parser.isSet(QStringLiteral("id")))
        settings.handlerNames.clear();
    for (const QString& name :
         {QStringLiteral("id"), QStringLiteral("keep"), QStringLiteral("contrast"), QStringLiteral("max-length")}) {
        for (const QString& value : parser.values(name))
            addProblem(name, settings.setOption(name, value));
    }
    settings.warningsAreErrors |= parser.isSet(QStringLiteral("werror"));
    problems.removeAll(QString());
    return problems.value(0);
}

QString Options::readActions(const QCommandLineParser& parser)
{
    baseline = parser.value(QStringLiteral("baseline"));
    updatesBaseline = parser.isSet(QStringLiteral("update-baseline"));
    if (updatesBaseline && baseline.isEmpty())
        return QStringLiteral("--update-baseline: the file is missing; add --baseline FILE");
    fixes = parser.isSet(QStringLiteral("fix"));
    isDryRun = parser.isSet(QStringLiteral("dry-run"));
    if (isDryRun && !fixes)
        return QStringLiteral("--dry-run: there is nothing to show; add --fix");
    showsUnresolved = parser.isSet(QStringLiteral("show-unresolved"));
    watches = parser.isSet(QStringLiteral("watch"));
    if (watches && (fixes || showsUnresolved || !baseline.isEmpty() || format != QLatin1String("text")))
        return QStringLiteral("--watch: leave out --baseline, --fix, --format, --show-unresolved and --summary");
    return QString();
}

} // namespace ResourceCheck
