#pragma once

#include <QDebug>
#include <QString>

#include <cstdio>
#include <cstdlib>

/// How many log records the current input has caused; none of them is shown.
inline int logRecords = 0;

inline const QtMessageHandler firstHandler =
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++logRecords; });

/// Ends the process when the two differ; libFuzzer then saves the input.
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
