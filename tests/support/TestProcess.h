#pragma once

#include <QProcess>

/// A program that is started, is ready when it has printed its first line, and is killed at the end.
class TestProcess
{
public:
    TestProcess(const QString& program, const QStringList& arguments);
    ~TestProcess();

    /// The first line that it printed; empty if there was none within 10 s.
    QString firstLine() const;
    QProcess& process();

private:
    QProcess child;
    QString line;
};

/// A bus of the test's own, which is the system bus of this process and its children. Qt connects a process to it
/// once: have one for the whole test.
class PrivateBus
{
public:
    PrivateBus();

private:
    TestProcess daemon;
};

/// Runs a program to its end, for 30 s at the most.
struct Outcome {
    int exitStatus;
    QByteArray output;
    QByteArray errors;
};
Outcome run(const QString& program, const QStringList& arguments);

/// Writes a file, and the folders above it; gives its path.
QString writeFile(const QString& path, const QByteArray& content);
