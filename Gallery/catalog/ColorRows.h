#pragma once

#include "Gallery/catalog/Entry.h"

#include <QHash>
#include <QMetaType>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVector>

namespace Gallery
{

/// A color of one theme, or a text color on a background, for C++ and QML.
struct ColorCell {
    Q_GADGET

    Q_PROPERTY(QString group MEMBER group)
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString background MEMBER background)
    Q_PROPERTY(QString missing MEMBER missing)

public:
    QString group;
    QString key;        ///< Of the color or of the text color.
    QString background; ///< `group/key` of the color below the text; empty for a color alone.
    QString missing;    ///< The key that the group lacks; empty if everything is there.
};

/// What is compared side by side: the cells of all themes with the same key, or with the same keys.
struct ColorRow {
    Q_GADGET

    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QVariantList cells MEMBER cells)

public:
    QString title;
    QVariantList cells; ///< Of ColorCell, in the order of the groups in the file.
};

/// Arranges the entries of a color file in rows. Groups that ResourceFormat::Themes calls themes, such as day and
/// night, are side by side. The row of a text color is followed by one row for each background that it is paired with.
class ColorRows
{
public:
    /// Names of a text color and its background, each as `group/key`.
    using Pairs = QVector<QPair<QString, QString>>;

    /// `pairs` are those that the convention for keys does not give. As in the checker, each is about the groups that
    /// it names and not about their themes. Pairs whose colors do not exist are left out.
    ColorRows(const QVariantList& entries, const Pairs& pairs);

    /// In the order of the file.
    QVector<ColorRow> rows() const;

private:
    QVector<QStringList> themes() const;
    QStringList keysOf(const QStringList& theme) const;
    QStringList backgroundKeysOf(const QStringList& theme, const QString& key) const;
    QStringList groupsWithPair(const QStringList& theme, const QString& key, const QString& backgroundKey) const;
    ColorRow row(const QStringList& theme, const QString& key, const QString& backgroundKey) const;
    void appendPairsAcrossGroups(const QString& text, QVector<ColorRow>& rows) const;
    bool has(const QString& group, const QString& key) const;

    QStringList groups;
    QHash<QString, QStringList> keys; // by group
    QSet<QString> names;
    Pairs contrastPairs;
};

} // namespace Gallery

Q_DECLARE_METATYPE(Gallery::ColorCell)
Q_DECLARE_METATYPE(Gallery::ColorRow)
