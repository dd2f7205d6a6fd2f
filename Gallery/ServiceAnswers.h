#pragma once

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>

namespace Gallery
{

/// Where the resources are, as the service says. The handlers never ask the service themselves.
struct ServiceAnswers {
    /// Asks the service: five D-Bus calls of at most 5 s each.
    static ServiceAnswers ask();

    /// The directory that holds colors, icons and texts; empty if the service named no file.
    QString directory() const;

    QString colorIniFilePath;
    QString fontIniFilePath;
    QList<QPair<QSize, QString>> displaySizes;
    QString iconBasePath;
    QString iconMappingTable;
    bool isReached = true;
};

} // namespace Gallery
