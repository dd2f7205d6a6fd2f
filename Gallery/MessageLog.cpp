#include "Gallery/MessageLog.h"

#include <QMutexLocker>

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int mostRecords = 500;
MessageLog* current = nullptr;
QtMessageHandler previousHandler = nullptr;

bool isOurs(const QMessageLogContext& context)
{
    return qstrncmp(context.file, "TarnisLibrary/", 14) == 0 || qstrncmp(context.file, "Common/", 7) == 0;
}

// QML names a file by its URL.
bool isFrontEnd(const QMessageLogContext& context)
{
    return qstrncmp(context.file, "file:", 5) == 0 || qstrncmp(context.file, "qrc:/qml/device/", 16) == 0;
}

} // namespace

MessageLog::MessageLog()
{
    // Queued, because a binding may cause a log record, and the Log page must not change while it is evaluated.
    connect(this, &MessageLog::recorded, this, &MessageLog::append, Qt::QueuedConnection);
    current = this;
    previousHandler = qInstallMessageHandler(handle);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(previousHandler);
    current = nullptr;
}

QVariantList MessageLog::records() const
{
    return recordMaps;
}

QStringList MessageLog::takeNew()
{
    const QMutexLocker locker(&mutex);
    QStringList texts = std::exchange(newTexts, QStringList());
    texts.removeDuplicates();
    return texts;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    previousHandler(type, context, text);
    if (isFrontEnd(context))
        Q_EMIT current->recorded(text);
    if (!isOurs(context))
        return;
    {
        const QMutexLocker locker(&current->mutex);
        current->newTexts.append(text);
    }
    Q_EMIT current->recorded(text);
}

void MessageLog::append(const QString& text)
{
    const auto sameText = [&](const QVariant& record) { return record.toMap().value(QStringLiteral("text")) == text; };
    const auto known = std::find_if(recordMaps.begin(), recordMaps.end(), sameText);
    int count = 1;
    if (known != recordMaps.end()) {
        count += known->toMap().value(QStringLiteral("count")).toInt();
        recordMaps.erase(known);
    }
    recordMaps.prepend(QVariantMap{{QStringLiteral("text"), text}, {QStringLiteral("count"), count}});
    if (recordMaps.size() > mostRecords)
        recordMaps.removeLast();
    Q_EMIT changed();
}

} // namespace Gallery
