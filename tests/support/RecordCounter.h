#pragma once

#include <QCoreApplication>
#include <QThread>

#include <atomic>

namespace Tests
{

/// Counts the records of a failed call to the service, and those that the library logs on the main thread.
struct RecordCounter {
    RecordCounter() { failedCalls = recordsOfLookups = 0; }
    ~RecordCounter() { qInstallMessageHandler(previous); }

    inline static std::atomic_int failedCalls, recordsOfLookups;

private:
    static void record(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
    {
        if (text.startsWith("\"D-Bus call to method"))
            ++failedCalls;
        else if (QThread::currentThread() == qApp->thread() && QByteArray(context.category) == "default")
            ++recordsOfLookups;
    }

    const QtMessageHandler previous = qInstallMessageHandler(record);
};

} // namespace Tests
