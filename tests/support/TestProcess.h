#pragma once

#include "tests/support/QtVersion.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>
#include <sys/prctl.h>

namespace Tests
{

/// A child process that ends when the test does, even if the test is killed. Qt starts the process of a derived class
/// with fork(), but that of QProcess itself with a system call that the emulator does not know.
struct Child : PreparedProcess {
    Child()
        : PreparedProcess([] { prctl(PR_SET_PDEATHSIG, SIGKILL); })
    {
    }

    /// Starts a program. Programs of this build are given as paths; they are emulated if built for another machine.
    void launch(const QString& program, const QStringList& arguments)
    {
        QStringList command;
        if (QDir::isAbsolutePath(program))
            command = QString(TEST_EMULATOR).split('|', Qt::SkipEmptyParts);
        command += program;
        const QString first = command.takeFirst();
        start(first, command + arguments);
    }
};

/// Starts a program, whose errors go to a file, and waits for the first line that it prints. Kills it in the end.
struct TestProcess {
    TestProcess(const QString& program, const QStringList& arguments, const QString& errorFile = QProcess::nullDevice())
    {
        child.setStandardErrorFile(errorFile);
        child.launch(program, arguments);
        while (!child.canReadLine() && child.waitForReadyRead(10000)) { }
        line = QString::fromUtf8(child.readLine()).trimmed();
    }
    ~TestProcess()
    {
        child.kill();
        child.waitForFinished();
    }

    /// The first line; empty if none came within 10 s.
    QString firstLine() const { return line; }
    QProcess& process() { return child; }

    /// Ends the test if the program does not run: process 0 would be the test itself and its parents.
    void sendSignal(int signal)
    {
        if (child.processId() == 0)
            qFatal("%s does not run", qPrintable(child.program()));
        ::kill(static_cast<pid_t>(child.processId()), signal);
    }

private:
    Child child;
    QString line;
};

/// A bus that is the system bus of this process and its children. Qt connects a process to the system bus only once, so
/// create one for the whole test.
struct PrivateBus {
    explicit PrivateBus(const QString& configuration = TEST_BUS_CONFIGURATION)
        : daemon("dbus-daemon", {"--config-file", configuration, "--nofork", "--nopidfile", "--print-address"})
    {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", daemon.firstLine().toUtf8());
    }

    TestProcess daemon;
};

/// Runs a program to its end, or kills it after 30 s (then, and after a crash, the exit status is -1).
struct Outcome {
    int exitStatus;
    QByteArray output;
    QByteArray errors;
};
inline Outcome run(const QString& program, const QStringList& arguments)
{
    Child process;
    process.launch(program, arguments);
    const bool isNormal = process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit;
    return {isNormal ? process.exitCode() : -1, process.readAllStandardOutput(), process.readAllStandardError()};
}

/// Resizes the X screen of `DISPLAY`.
inline bool switchScreen(int width, int height)
{
    const QString switchTo = "xrandr --newmode m$0 30 $0 $(($0+1)) $(($0+2)) $(($0+3)) $1 $(($1+1)) $(($1+2)) "
                             "$(($1+3)) && xrandr --addmode screen m$0 && xrandr --output screen --mode m$0";
    return run("sh", {"-c", switchTo, QString::number(width), QString::number(height)}).exitStatus == 0;
}

/// Writes a file and creates its folders. Returns its path.
inline QString writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

} // namespace Tests
