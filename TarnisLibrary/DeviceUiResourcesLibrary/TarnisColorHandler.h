#pragma once

#include "Common/IniTools/IniFileManager.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QObject>
#include <QString>

/// Answers the colour lookups of QML from the colour INI file, which is read once, in the constructor.
class TARNISLIBRARY_EXPORT TarnisColorHandler : public QObject
{
    Q_OBJECT

public:
    /// A missing or faulty file is logged by the reader; every lookup then misses.
    explicit TarnisColorHandler(const QString& colorIniFilePath, QObject* parent = nullptr);

    /// The text that the file holds for the key, unchanged, whether or not it is a colour.
    /// A miss logs `No color for key "K" in group "G" !` and returns an empty string.
    Q_INVOKABLE QString getColor(const QString& group, const QString& key) const;

private:
    IniFileManager colorFile;
};
