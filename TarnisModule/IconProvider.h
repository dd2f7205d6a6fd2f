#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

/// The object `/Tarnis/IconProvider`: says where the icons lie and hands out the mapping table, from the resource
/// directory as it is at the time of the call. What is missing or bad is answered with an error that names the file.
class IconProvider : public QObject
{
    Q_OBJECT

public:
    /// `directory` is absolute.
    explicit IconProvider(const QString& directory, QObject* parent = nullptr);

    QDBusVariant getIconResourcesBasePath() const;

    /// The empty name is `icons/mapping.json`, any other `icons/mapping.NAME.json`. A name that holds "/" or begins
    /// with "." is refused.
    QDBusVariant getIconResourcesMappingTable(const QString& name) const;

private:
    QString iconDirectory;
};
