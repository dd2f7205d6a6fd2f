#pragma once

#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtGlobal>

/// Keeps the records of the library and of the platform, newest first, and passes every record of the message log on
/// to the handler that was there before. The QML singleton `Log` of the module `Tarnis`. There can be one at a time.
class MessageLog : public QObject
{
    Q_OBJECT

    /// Maps with `text` and `count`.
    Q_PROPERTY(QVariantList records MEMBER records NOTIFY changed)

public:
    MessageLog();
    ~MessageLog() override;

    /// The texts logged since the last call, each once.
    QStringList takeNew();

Q_SIGNALS:
    void changed();
    void recorded(const QString& text);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void append(const QString& text);

    QVariantList records;
    QMutex mutex; // any thread may log
    QStringList newTexts;
};
