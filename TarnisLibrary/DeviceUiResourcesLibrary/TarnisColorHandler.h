#pragma once

#include "Common/IniTools/IniFileManager.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QObject>
#include <QString>

/// Answers QML's color lookups from the color INI file, which is read once, in the constructor.
class TARNISLIBRARY_EXPORT TarnisColorHandler : public QObject
{
    Q_OBJECT

public:
    /// The reader logs a missing or faulty file; lookups of what it lacks then miss.
    explicit TarnisColorHandler(const QString& colorIniFilePath, QObject* parent = nullptr);

    /// The key's text in the file, unchanged, whether or not it is a color.
    /// A miss logs `No color for key "K" in group "G" !` and returns an empty string.
    Q_INVOKABLE QString getColor(const QString& group, const QString& key) const;

private:
    IniFileManager colorFile;
};
