#include "Gallery/MessageLog.h"

namespace
{

constexpr int mostRecords = 200;
MessageLog* current = nullptr;
QtMessageHandler previousHandler = nullptr;

} // namespace

MessageLog::MessageLog()
{
    // Queued: a lookup within a binding may log, and the page that shows the log must not change under it.
    connect(this, &MessageLog::recorded, this, &MessageLog::append, Qt::QueuedConnection);
    current = this;
    previousHandler = qInstallMessageHandler(handle);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(previousHandler);
    current = nullptr;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    previousHandler(type, context, text);
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    Q_EMIT current->recorded(text);
}

void MessageLog::append(const QString& text)
{
    if (records.contains(text))
        return;
    records.prepend(text);
    while (records.size() > mostRecords)
        records.removeLast();
    Q_EMIT changed();
}
