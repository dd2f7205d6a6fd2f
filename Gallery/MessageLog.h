#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Keeps the warnings and errors of Qt's message log for the page, newest first, and passes every record on to the
/// handler that was there before. The QML singleton `Log` of the module `Tarnis`. There can be one at a time.
class MessageLog : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList records MEMBER records NOTIFY changed)

public:
    MessageLog();
    ~MessageLog() override;

Q_SIGNALS:
    void changed();
    void recorded(const QString& text);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void append(const QString& text);

    QStringList records;
};
