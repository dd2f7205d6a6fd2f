#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QPair>
#include <QSize>
#include <QString>
#include <QStringList>

namespace QmlHost
{

/// What a source says of the resources of the device. Each part is answered or not; a part that is not answered has its
/// default value. Equal parts name the same files, none of which has changed in between.
struct Answers {
    /// One part with the state of its files.
    template <typename Value>
    struct Part {
        Value value;            ///< What the source says.
        QByteArray fingerprint; ///< Of the files that the value names; null if the part is not answered.

        /// Whether the value means anything.
        bool isAnswered() const { return !fingerprint.isNull(); }

        /// Whether the value is equal and no file has changed.
        bool operator==(const Part& other) const { return value == other.value && fingerprint == other.fingerprint; }

        /// The opposite.
        bool operator!=(const Part& other) const { return !(*this == other); }
    };

    Part<QString> colorFile;                         ///< Path.
    Part<QString> fontFile;                          ///< Path.
    Part<QList<QPair<QSize, QString>>> displaySizes; ///< In pixels, with the path of the dimension file.
    Part<QPair<QString, QString>> icons;             ///< Path of the directory, and the mapping table as JSON text.
    Part<QString> textFolder;                        ///< Path.
    QStringList languages;                           ///< Of the text folder, sorted.

    /// Answers this part and records the state of its file. An empty value, which is what a failed question returns,
    /// changes nothing. This function and the next ones read the file system: call them from the worker thread.
    void setColorFile(const QString& path);

    /// As setColorFile().
    void setFontFile(const QString& path);

    /// As setColorFile().
    void setDisplaySizes(const QList<QPair<QSize, QString>>& sizes);

    /// As setColorFile(). `includesFiles` tells whether changes of the icon files matter.
    void setIcons(const QString& folder, const QString& mappingTable, bool includesFiles);

    /// Answers with the texts of the resource directory, if it has any.
    void setTexts(const QString& resourceDirectory);

    /// Answers that the resource directory, which has been read, contains no texts.
    void setNoTexts(const QString& resourceDirectory);

    /// Records the state of the files of all answered parts again.
    void renew(bool includesIconFiles);

    /// The resource directory that the answered parts are in; empty if none of them tells.
    QString directory() const;

    /// Whether there is anything for QML to look up.
    bool isAnyAnswered() const;

    /// Whether all parts are equal.
    bool operator==(const Answers& other) const;

    /// Takes over the parts that are not answered here.
    void complete(const Answers& earlier);
};

} // namespace QmlHost

Q_DECLARE_METATYPE(QmlHost::Answers)
