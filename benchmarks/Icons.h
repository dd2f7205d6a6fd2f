#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QVector>

namespace Benchmarks
{

/// A toolbar icon of the Breeze theme: its name in the theme, its alias in the Breeze resource directory, and its path.
struct Icon {
    QString name;
    QString alias;
    QString path;
};

inline const QString breezeIcons = QStringLiteral(BREEZE "/icons");

/// The first thousand icons, sorted by name.
inline QVector<Icon> readIcons()
{
    QVector<Icon> icons;
    const QDir directory(breezeIcons + QStringLiteral("/breeze/actions/22"), QStringLiteral("*.svg"));
    const QFileInfoList files = directory.entryInfoList().mid(0, 1000);
    for (const QFileInfo& file : files) {
        const QString name = file.completeBaseName();
        icons.append({name, QStringLiteral("actions/22/") + name, file.filePath()});
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

} // namespace Benchmarks
