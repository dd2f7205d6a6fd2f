#pragma once

#include <QDBusVariant>
#include <QList>
#include <QObject>
#include <QPair>
#include <QSize>
#include <QString>

/// A supported display size in pixels and the path of its dimension INI file.
using DisplaySize = QPair<QSize, QString>;

/// The object `/Tarnis/DeviceUiResources`: says where colours, fonts and dimensions lie, from the resource directory as
/// it is at the time of the call. What is missing or bad is answered with an error that names the file.
class DeviceUiResources : public QObject
{
    Q_OBJECT

public:
    /// `directory` is absolute.
    explicit DeviceUiResources(const QString& directory, QObject* parent = nullptr);

    QDBusVariant getFontIniFilePath() const;
    QDBusVariant getColorIniFilePath() const;

    /// Every `dimensions/WxH.ini`; an INI file there with another name is an error.
    QDBusVariant getSupportedScreenSizes() const;

private:
    QString directory;
};
