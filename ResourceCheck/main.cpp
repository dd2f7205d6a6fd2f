#include "ResourceCheck/Baseline.h"
#include "ResourceCheck/Checker.h"
#include "ResourceCheck/MessageSilencer.h"
#include "ResourceCheck/Options.h"
#include "ResourceCheck/Resolve.h"
#include "ResourceCheck/fix/Patches.h"
#include "ResourceCheck/output/GitlabOutput.h"
#include "ResourceCheck/output/JsonOutput.h"
#include "ResourceCheck/output/SarifOutput.h"
#include "ResourceCheck/output/SourceLines.h"
#include "ResourceCheck/output/TextOutput.h"
#include "ResourceCheck/reading/Resources.h"
#include "ResourceCheck/watch/Watch.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <unistd.h>

using namespace ResourceCheck;

namespace
{

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

// The findings must not depend on the display of the caller, but on the fonts of the machine. Font sizes are printed
// for a fixed resolution. Without a runtime directory, Qt prints a warning that has no meaning for this program.
std::unique_ptr<QGuiApplication> createApplication(char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    qputenv("QT_FONT_DPI", "96");
    static int nameOnly = 1; // Qt must not read the options
    const MessageSilencer silencer;
    auto application = std::make_unique<QGuiApplication>(nameOnly, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(TARNIS_VERSION));
    return application;
}

QVector<Finding> findFaults(const Options& options, QmlNames* names = nullptr)
{
    QElapsedTimer timer;
    timer.start();
    const Progress progress = [&timer](int done, int all) {
        constexpr int patience = 1000; // milliseconds
        if (isatty(STDERR_FILENO) != 0 && timer.hasExpired(patience))
            std::fprintf(stderr, "\rchecking: %d %%%s", 100 * done / all, done < all ? "" : "\r\033[K");
    };
    return Checker(options.directory, options.qmlDirectories, options.settings).findings(progress, names);
}

QByteArray output(const QVector<Finding>& findings, const QString& format)
{
    if (format == QLatin1String("summary"))
        return summaryOutput(findings);
    if (format == QLatin1String("json"))
        return jsonOutput(findings);
    if (format == QLatin1String("sarif"))
        return sarifOutput(findings);
    if (format == QLatin1String("gitlab"))
        return gitlabOutput(findings);
    const bool isTerminal = isatty(STDOUT_FILENO) != 0;
    return textOutput(findings, isTerminal && qEnvironmentVariableIsEmpty("NO_COLOR"), isTerminal);
}

ExitStatus fail(const QString& problem)
{
    std::fprintf(stderr, "tarnis-resource-check: %s\n", qUtf8Printable(problem));
    return WrongUsage;
}

// SARIF marks the accepted findings, the other formats leave them out.
ExitStatus print(QVector<Finding> findings, const QString& format)
{
    const auto isAccepted = [](const Finding& finding) { return finding.isAccepted.value_or(false); };
    if (format != QLatin1String("sarif"))
        findings.erase(std::remove_if(findings.begin(), findings.end(), isAccepted), findings.end());
    std::fputs(output(findings, format).constData(), stdout);
    std::fflush(stdout);
    if (format == QLatin1String("text") && !findings.isEmpty())
        std::fputs(totals(findings).constData(), stderr);
    const auto isError = [&](const Finding& finding) {
        return finding.severity == Severity::Error && !isAccepted(finding);
    };
    return std::any_of(findings.begin(), findings.end(), isError) ? Failure : Success;
}

// Returns whether all files with repairs could be written, or shown.
ExitStatus fix(const Options& options)
{
    for (const Patch& patch : Patches::of(findFaults(options), Resources(options.directory))) {
        const QString problem = options.isDryRun ? QString() : patch.apply();
        if (!problem.isNull())
            return fail(problem);
        if (options.isDryRun)
            std::fputs(patch.diff().constData(), stdout);
    }
    return Success;
}

ExitStatus runCheck(const Options& options)
{
    Baseline baseline;
    const bool usesBaseline = !options.baseline.isEmpty() && !options.updatesBaseline;
    const QString problem = usesBaseline ? baseline.read(options.baseline) : QString();
    if (!problem.isNull())
        return fail(problem);
    QmlNames names;
    QVector<Finding> findings = findFaults(options, &names);
    addFingerprints(findings, options.directory);
    if (options.format == QLatin1String("sarif"))
        Patches::addRepairs(findings, Resources(options.directory));
    if (options.updatesBaseline) {
        const QString writeProblem = Baseline::write(options.baseline, findings);
        return writeProblem.isNull() ? Success : fail(writeProblem);
    }
    if (usesBaseline)
        baseline.accept(findings);
    const ExitStatus status = print(findings, options.format);
    std::fputs(undeterminableOutput(names, options.showsUnresolved).constData(), stderr);
    for (const QString& line : baseline.repaired()) {
        std::fprintf(stderr, "%s: a finding is repaired; run --update-baseline to remove \"%s\"\n",
                     qUtf8Printable(options.baseline), qUtf8Printable(line));
    }
    return baseline.repaired().isEmpty() ? status : Failure;
}

ExitStatus run(const QStringList& arguments)
{
    Options options;
    const QString problem = options.parse(arguments);
    if (!problem.isNull())
        return fail(problem);
    if (!options.information.isEmpty()) {
        std::fputs(options.information.constData(), stdout);
        return Success;
    }
    if (!options.question.isEmpty())
        return resolve(options.directory, options.question) ? Success : Failure;
    if (options.watches)
        return Watch(arguments, options).run() ? Success : Failure;
    const ExitStatus fixed = options.fixes ? fix(options) : Success;
    return options.isDryRun || fixed != Success ? fixed : runCheck(options);
}

} // namespace

int main(int argc, char* argv[])
{
    const std::unique_ptr<QGuiApplication> application = createApplication(argv);
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    return run(arguments);
}
