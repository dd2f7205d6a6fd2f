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
    template <typename Value>
    struct Part {
        Value value;
        QByteArray fingerprint; // of the files that the value names; null if the part is not answered

        bool isAnswered() const { return !fingerprint.isNull(); }
        bool operator==(const Part& other) const { return value == other.value && fingerprint == other.fingerprint; }
        bool operator!=(const Part& other) const { return !(*this == other); }
    };

    struct Icons {
        QString folder;
        QString mappingTable; // JSON text

        bool operator==(const Icons& other) const
        {
            return folder == other.folder && mappingTable == other.mappingTable;
        }
    };

    Part<QString> colorFile;
    Part<QString> fontFile;
    Part<QList<QPair<QSize, QString>>> displaySizes; // in pixels, with the path of the dimension file
    Part<Icons> icons;
    Part<QString> textFolder;
    QStringList languages; // of the text folder, sorted

    /// Each of these answers one part and records the state of its files. A null or empty value, which stands for a
    /// question without an answer, changes nothing. They read the file system: call them from the worker thread.
    void setColorFile(const QString& path);
    void setFontFile(const QString& path);
    void setDisplaySizes(const QList<QPair<QSize, QString>>& sizes);
    /// `files` are icons whose changes matter; by default none is looked at.
    void setIcons(const QString& folder, const QString& mappingTable, const QStringList& files = {});
    /// The texts of the resource directory, if it has any.
    void setTexts(const QString& resourceDirectory);

    bool isAnyAnswered() const;

    bool operator==(const Answers& other) const;

    /// Takes over the parts that are not answered here.
    void complete(const Answers& earlier);
};

} // namespace QmlHost

Q_DECLARE_METATYPE(QmlHost::Answers)
