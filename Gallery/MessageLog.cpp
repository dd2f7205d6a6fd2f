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

// Empty for a record that is not kept.
QString sourceOf(const QMessageLogContext& context)
{
    if (qstrncmp(context.file, "TarnisLibrary/", 14) == 0)
        return QStringLiteral("library");
    if (qstrncmp(context.file, "Common/", 7) == 0)
        return QStringLiteral("platform");
    // Not the gallery's own pages, which must not log about themselves.
    const bool isFrontEnd =
        qstrncmp(context.file, "file:", 5) == 0 || qstrncmp(context.file, "qrc:/qml/device/", 16) == 0;
    return isFrontEnd ? QStringLiteral("front end") : QString();
}

QString severityOf(QtMsgType type)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        return QStringLiteral("error");
    return type == QtWarningMsg ? QStringLiteral("warning") : QStringLiteral("information");
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
    QStringList texts;
    for (const QString& text : std::exchange(newTexts, QStringList()))
        texts.append(shown(text));
    texts.removeDuplicates();
    return texts;
}

void MessageLog::showOriginals(const QString& originals, const QString& copies)
{
    originalDirectory = originals;
    copyDirectory = copies;
}

QString MessageLog::shown(QString text) const
{
    return originalDirectory.isEmpty() ? text : text.replace(copyDirectory, originalDirectory);
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    previousHandler(type, context, text);
    const QString source = sourceOf(context);
    if (source.isEmpty())
        return;
    if (source != QLatin1String("front end")) {
        const QMutexLocker locker(&current->mutex);
        current->newTexts.append(text);
    }
    Q_EMIT current->recorded(text, severityOf(type), source);
}

void MessageLog::append(const QString& loggedText, const QString& severity, const QString& source)
{
    const QString text = shown(loggedText);
    const auto sameText = [&](const QVariant& record) { return record.toMap().value(QStringLiteral("text")) == text; };
    const auto known = std::find_if(recordMaps.begin(), recordMaps.end(), sameText);
    int count = 1;
    if (known != recordMaps.end()) {
        count += known->toMap().value(QStringLiteral("count")).toInt();
        recordMaps.erase(known);
    }
    recordMaps.prepend(QVariantMap{{QStringLiteral("text"), text},
                                   {QStringLiteral("count"), count},
                                   {QStringLiteral("severity"), severity},
                                   {QStringLiteral("source"), source}});
    if (recordMaps.size() > mostRecords)
        recordMaps.removeLast();
    Q_EMIT changed();
}

} // namespace Gallery
