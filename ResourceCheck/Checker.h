#pragma once

#include "ResourceCheck/Check.h"
#include "ResourceCheck/Settings.h"
#include "ResourceCheck/qml/QmlNames.h"

namespace ResourceCheck
{

/// Checks a resource directory and the QML that uses it. This is the entry point for other programs.
///
/// A QGuiApplication must exist. findings() reads the files and can be called in any thread; it silences the messages
/// of Qt in that thread only.
class Checker
{
public:
    /// `qmlDirectories` can be empty. The file of settings in the directory is not read; see Settings::readFileOf().
    explicit Checker(const QString& resourceDirectory, const QStringList& qmlDirectories = {},
                     const Settings& settings = {});

    /// Reads everything again and returns the findings, sorted by place, with the severities of the settings. `names`,
    /// if it is not null, receives the names in QML that depend on values at run time.
    QVector<Finding> findings(
        const Progress& progress = [](int /*done*/, int /*all*/) {}, QmlNames* names = nullptr) const;

private:
    QString directory;
    QStringList qml;
    Settings how;
};

} // namespace ResourceCheck
