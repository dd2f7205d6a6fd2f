#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariantList>

namespace Gallery
{

/// A key of an INI file, for C++ and QML.
struct Entry {
    Q_GADGET

    Q_PROPERTY(QString group MEMBER group)
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString value MEMBER value)

public:
    /// The entries of a file, in its order; empty for an empty path.
    static QVariantList ofFile(const QString& path);

    /// Those of the entries whose name contains the text; upper and lower case are equal.
    static QVariantList matching(const QVariantList& entries, const QString& search);

    /// `group/key`.
    QString name() const;

    QString group;
    QString key;
    QString value;
};

} // namespace Gallery

Q_DECLARE_METATYPE(Gallery::Entry)
