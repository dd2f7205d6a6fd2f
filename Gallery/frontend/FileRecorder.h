#pragma once

#include <QByteArray>
#include <QMutex>
#include <QQmlAbstractUrlInterceptor>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

class QQmlEngine;

namespace Gallery
{

/// Notes which local files a QML engine reads. Thread-safe, because the engine also reads files on a thread of its own.
///
/// Qt shares pictures between engines, by URL. The recorder therefore adds the state of the file to the URL of each
/// picture, as a fragment, so that a picture that was saved again is read again.
class FileRecorder : public QQmlAbstractUrlInterceptor
{
public:
    /// Notes the files of this engine, which must not outlive the recorder.
    void follow(QQmlEngine& engine);

    QUrl intercept(const QUrl& url, DataType type) override;

    /// The paths of the files, including missing ones and without those of the modules installed with Qt. Sorted.
    QStringList files() const;

    /// Of these files and the others in their folders from which QML may take types, see QmlHost::Fingerprint.
    static QByteArray fingerprint(const QStringList& files);

private:
    mutable QMutex mutex;
    QSet<QString> paths;
};

} // namespace Gallery
