#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>

namespace Gallery
{

/// What the head of an icon file tells, for C++ and QML.
struct IconFile {
    Q_GADGET

    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString size MEMBER size)
    Q_PROPERTY(QString viewBox MEMBER viewBox)

public:
    /// Reads the head of the file `name` in the folder; neither its shapes nor its pixels. Logs nothing.
    static IconFile read(const QString& folder, const QString& name);

    QString name;    ///< The path relative to the icon folder; empty if there is no file in the table.
    QString size;    ///< With its unit: `px`, the unit in the SVG file, or `units`. Empty if the file does not tell it.
    QString viewBox; ///< Left, top, width and height. Empty if the file has none.
};

} // namespace Gallery

Q_DECLARE_METATYPE(Gallery::IconFile)
