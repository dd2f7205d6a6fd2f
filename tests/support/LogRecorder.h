#pragma once

#include <QRegularExpression>
#include <QStringList>

/// Records Qt's message log instead of printing it, for as long as it lives.
struct LogRecorder {
    LogRecorder() { records.clear(); }
    ~LogRecorder() { qInstallMessageHandler(previous); }

    /// The records since the last call, each as `[TYPE ][CATEGORY ]Class::function: text`. The type is left out for a
    /// warning, the category for "default". A record without file and line, or with a file name that is not relative
    /// to the repository, says so.
    static QStringList take() { return std::exchange(records, QStringList()); }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        static const QRegularExpression functionName("((?:\\w+::)?\\w+)\\(");
        const QString file(context.file);
        const bool hasPlace = (file.startsWith("TarnisLibrary/") || file.startsWith("Common/")) && context.line > 0;
        const QString category(context.category);
        const QString kind = type == QtWarningMsg ? "" : type == QtCriticalMsg ? "critical " : "other ";
        records.append(kind + (category == "default" ? "" : category + ' ')
                       + functionName.match(context.function).captured(1) + ": " + text
                       + (hasPlace ? "" : " (at " + file + ")"));
    }

    inline static QStringList records;
    const QtMessageHandler previous = qInstallMessageHandler(record);
};
