#pragma once

#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtGlobal>

namespace Gallery
{

/// Keeps the log records of the library, of the platform and of the shown front end, the newest first. All log records
/// are passed on to the previous message handler. The QML singleton `Log` of the module `Tarnis.Gallery`. Only one may
/// exist at a time.
class MessageLog : public QObject
{
    Q_OBJECT

    /// Maps with `text`, `count`, `severity` (`error`, `warning` or `information`) and `source` (`library`, `platform`
    /// or `front end`).
    Q_PROPERTY(QVariantList records READ records NOTIFY changed)

public:
    MessageLog();
    ~MessageLog() override;

    QVariantList records() const;

    /// The texts that library and platform have logged since the last call, without duplicates.
    QStringList takeNew();

    /// Replaces the directory of copies by that of the originals in the texts.
    void showOriginals(const QString& originals, const QString& copies);

Q_SIGNALS:
    void changed();
    void recorded(const QString& text, const QString& severity, const QString& source);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void append(const QString& loggedText, const QString& severity, const QString& source);
    QString shown(QString text) const;

    QString originalDirectory;
    QString copyDirectory;
    QVariantList recordMaps;
    QMutex mutex; // any thread may log
    QStringList newTexts;
};

} // namespace Gallery
