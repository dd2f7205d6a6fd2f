#pragma once

#include "ResourceCheck/Finding.h"
#include "ResourceCheck/watch/TreeWatcher.h"

namespace ResourceCheck
{

struct Options;

/// Checks again after each change and prints what has changed: repaired findings with `-`, new ones with `+`, and a
/// line of totals. Initially, all findings are new.
///
/// A finding that only moves to another line has not changed. While the options are wrong, for example because the
/// directory does not exist, their problem is printed to stderr and the findings stay as they were.
class Watch
{
public:
    /// `commandLine` is parsed again for each check, because the directory has options, too.
    Watch(const QStringList& commandLine, const Options& options);

    /// Runs until SIGINT or SIGTERM. Returns whether the last check found no errors.
    bool run();

private:
    void check();
    void print(const QVector<Finding>& found);
    void report(const QString& problem);

    QStringList arguments;
    TreeWatcher watcher;
    QVector<Finding> findings;
    QString lastProblem = QStringLiteral("not checked yet"); // null if the last check was possible
};

} // namespace ResourceCheck
