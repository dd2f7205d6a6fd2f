#include "tests/support/TestProcess.h"

#include <QDir>
#include <QFileInfo>

namespace
{

constexpr int startMilliseconds = 10000;
constexpr int endMilliseconds = 30000;

} // namespace

TestProcess::TestProcess(const QString& program, const QStringList& arguments)
{
    child.setStandardErrorFile(QProcess::nullDevice());
    child.start(program, arguments);
    while (!child.canReadLine() && child.waitForReadyRead(startMilliseconds)) { }
    line = QString::fromUtf8(child.readLine()).trimmed();
}

TestProcess::~TestProcess()
{
    child.kill();
    child.waitForFinished(endMilliseconds);
}

QString TestProcess::firstLine() const
{
    return line;
}

QProcess& TestProcess::process()
{
    return child;
}

PrivateBus::PrivateBus()
    : daemon("dbus-daemon", {"--config-file", TEST_BUS_CONFIGURATION, "--nofork", "--nopidfile", "--print-address"})
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", daemon.firstLine().toUtf8());
}

Outcome run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(endMilliseconds))
        process.kill();
    process.waitForFinished(endMilliseconds);
    const int status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return {status, process.readAllStandardOutput(), process.readAllStandardError()};
}

QString writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}
