#pragma once

#include <QDebug>

#include <cstdio>
#include <cstdlib>

/// The number of log records that the current input has caused. None of them is printed.
inline int logRecords = 0;

inline const QtMessageHandler firstHandler =
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++logRecords; });

/// Ends the process if the two differ. libFuzzer then saves the input.
template <typename Value>
void requireEqual(const Value& found, const Value& expected, const char* what)
{
    if (found == expected)
        return;
    QString text;
    QDebug(&text).nospace() << what << "\n  found    " << found << "\n  expected " << expected;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::abort();
}
