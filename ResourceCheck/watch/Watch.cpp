#include "ResourceCheck/watch/Watch.h"

#include "ResourceCheck/Checker.h"
#include "ResourceCheck/Options.h"
#include "ResourceCheck/output/SourceLines.h"
#include "ResourceCheck/output/TextOutput.h"

#include <QCoreApplication>
#include <QSet>
#include <QSocketNotifier>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <sys/signalfd.h>
#include <unistd.h>

namespace ResourceCheck
{

namespace
{

QSet<QString> identitiesOf(const QVector<Finding>& findings)
{
    QSet<QString> identities;
    for (const Finding& finding : findings)
        identities.insert(finding.fingerprint + finding.message);
    return identities;
}

// Those of the findings that the others lack, one per line after the mark.
QByteArray difference(const QVector<Finding>& findings, const QVector<Finding>& others, const char* mark)
{
    const bool isColored = isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
    const QSet<QString> known = identitiesOf(others);
    QByteArray lines;
    for (const Finding& finding : findings) {
        if (!known.contains(finding.fingerprint + finding.message))
            lines += mark + textOutput({finding}, isColored, false);
    }
    return lines;
}

} // namespace

Watch::Watch(const QStringList& commandLine, const Options& options)
    : arguments(commandLine)
    , watcher(QStringList(options.directory) + options.qmlDirectories, [this] { check(); })
{
}

// The signals are blocked in every thread and read from a descriptor, so that a check is not interrupted.
bool Watch::run()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    const QSocketNotifier notifier(signalfd(-1, &signals, SFD_CLOEXEC), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    check();
    QCoreApplication::exec();
    return std::none_of(findings.begin(), findings.end(),
                        [](const Finding& finding) { return finding.severity == Severity::Error; });
}

void Watch::check()
{
    const QString watchProblem = watcher.renew();
    Options options;
    const QString problem = options.parse(arguments);
    if (problem.isNull()) {
        QVector<Finding> found = Checker(options.directory, options.qmlDirectories, options.settings).findings();
        addFingerprints(found, options.directory);
        print(found);
    }
    report(problem.isNull() ? watchProblem : problem);
}

void Watch::print(const QVector<Finding>& found)
{
    const QByteArray changes = difference(findings, found, "- ") + difference(found, findings, "+ ");
    if (!changes.isEmpty() || !lastProblem.isNull())
        std::fputs((changes + totals(found)).constData(), stdout);
    std::fflush(stdout);
    findings = found;
}

void Watch::report(const QString& problem)
{
    if (!problem.isNull() && problem != lastProblem)
        std::fprintf(stderr, "tarnis-resource-check: %s\n", qUtf8Printable(problem));
    lastProblem = problem;
}

} // namespace ResourceCheck
