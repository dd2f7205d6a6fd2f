#pragma once

#include <QRegularExpression>
#include <QStringList>

namespace Tests
{

/// Records Qt's message log instead of printing it, for as long as it lives.
struct LogRecorder {
    LogRecorder() { records.clear(); }
    ~LogRecorder() { qInstallMessageHandler(previous); }

    /// The records since the last call: `Class::function: text` for the default category, `CATEGORY text` for others,
    /// both after the type unless it is a warning. A record without a line, or with a file name that is not relative to
    /// the repository, has its place appended.
    static QStringList take() { return std::exchange(records, QStringList()); }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        static const QRegularExpression functionName("((?:\\w+::)?\\w+)\\(");
        const QString file(context.file);
        const bool hasPlace = (file.startsWith("TarnisLibrary/") || file.startsWith("Common/")) && context.line > 0;
        const QString category(context.category);
        const QString kind = type == QtWarningMsg ? "" : type == QtCriticalMsg ? "critical " : "other ";
        const QString source =
            category == "default" ? functionName.match(context.function).captured(1) + ": " : category + ' ';
        records.append(kind + source + text + (hasPlace ? "" : " (at " + file + ")"));
    }

    inline static QStringList records;
    const QtMessageHandler previous = qInstallMessageHandler(record);
};

} // namespace Tests
