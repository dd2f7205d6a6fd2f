#pragma once

#include "QmlHost/Source.h"

#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace Gallery
{

/// Everything that a resource directory gives to the front end of a device, at one moment.
class Snapshot
{
public:
    enum Kind { Display, Language, Color, Font, Dimension, Icon, Text };

    /// `variant` is the display of a dimension, the context of an icon and the language of a text.
    struct Key {
        QString name;
        QString variant;

        bool operator<(const Key& other) const;
    };

    struct Value {
        QString text;     ///< As in the file. The path of an icon is relative.
        QString identity; ///< Equal for values that look the same.
        QString path;     ///< Of the file of an icon; empty if it does not exist.
        QString fault;    ///< Why the file of an icon cannot be read; empty if it can.
    };

    using Values = QMap<Key, Value>;

    /// All kinds, in the order in which people read them.
    static const QVector<Kind>& kinds();

    Snapshot() = default;

    /// Reads the files that the answers name. `problem` has one fault per line, as LastGoodSource reports them.
    Snapshot(const QmlHost::Answers& answers, const QString& problem);

    /// Asks the source once, on this thread.
    static Snapshot of(std::unique_ptr<QmlHost::Source> source);

    const Values& values(Kind kind) const;

    /// The font family of the group that the name of a font value begins with.
    QString fontFamily(const QString& fontName) const;

    /// Whether values of this kind and variant are known. If not, their absence means nothing.
    bool isReadable(Kind kind, const QString& variant = QString()) const;

    /// What could not be read.
    const QStringList& problems() const;

private:
    void readColors(const QString& path);
    void readFonts(const QString& path);
    void readDimensions(const QList<QPair<QSize, QString>>& displaySizes);
    void readIcons(const QString& folder, const QString& mappingTable);
    void readTexts(const QString& folder, const QStringList& languages);

    QMap<Kind, Values> valuesByKind;
    QSet<QPair<Kind, QString>> unreadable; // an empty variant means the whole kind
    QStringList problemTexts;
};

} // namespace Gallery
