#pragma once

#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtGlobal>

namespace Gallery
{

/// Keeps the log records of the library, of the platform and of the shown front end, the newest first. All log records
/// are passed on to the previous message handler. The QML singleton `Log` of the module `Tarnis`. Only one may exist at
/// a time.
class MessageLog : public QObject
{
    Q_OBJECT

    /// Maps with `text` and `count`.
    Q_PROPERTY(QVariantList records READ records NOTIFY changed)

public:
    MessageLog();
    ~MessageLog() override;

    QVariantList records() const;

    /// The texts that library and platform have logged since the last call, without duplicates.
    QStringList takeNew();

Q_SIGNALS:
    void changed();
    void recorded(const QString& text);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void append(const QString& text);

    QVariantList recordMaps;
    QMutex mutex; // any thread may log
    QStringList newTexts;
};

} // namespace Gallery
