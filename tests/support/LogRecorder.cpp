#include "tests/support/LogRecorder.h"

#include <QRegularExpression>

namespace
{

QStringList records;

void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    static const QRegularExpression functionName("((?:\\w+::)?\\w+)\\(");
    const QString file(context.file);
    const bool hasPlace = (file.startsWith("TarnisLibrary/") || file.startsWith("Common/")) && context.line > 0;
    records.append((type == QtWarningMsg        ? ""
                        : type == QtCriticalMsg ? "critical "
                                                : "other ")
                   + (qstrcmp(context.category, "default") == 0 ? QString() : QString(context.category) + ' ')
                   + functionName.match(context.function).captured(1) + ": " + text
                   + (hasPlace ? QString() : " (at " + file + ")"));
}

} // namespace

LogRecorder::LogRecorder()
{
    records.clear();
    qInstallMessageHandler(record);
}

LogRecorder::~LogRecorder()
{
    qInstallMessageHandler(nullptr);
}

QStringList LogRecorder::take()
{
    return std::exchange(records, QStringList());
}
