#pragma once

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QVector>

/// The toolbar icons of the Breeze theme: under their names in the theme, as aliases of the Breeze resource directory,
/// and as paths.
struct Icon {
    QString name;
    QString alias;
    QString path;
};

inline const QString breezeIcons = QStringLiteral(BREEZE "/icons");

inline QVector<Icon> readIcons()
{
    QVector<Icon> icons;
    QDirIterator files(breezeIcons + QStringLiteral("/breeze/actions/22"), {QStringLiteral("*.svg")});
    while (files.hasNext() && icons.size() < 1000) {
        const QString path = files.next();
        const QString name = files.fileInfo().completeBaseName();
        icons.append({name, QStringLiteral("actions/22/") + name, path});
    }
    if (icons.isEmpty())
        qFatal("There is no Breeze resource directory: run scripts/breeze-resources.sh");
    return icons;
}

inline QString readBreezeTable()
{
    QFile file(breezeIcons + QStringLiteral("/mapping.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no Breeze resource directory: run scripts/breeze-resources.sh");
    return QString::fromUtf8(file.readAll());
}
