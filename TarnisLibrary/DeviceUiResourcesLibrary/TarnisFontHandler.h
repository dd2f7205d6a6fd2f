#pragma once

#include "Common/IniTools/IniFileManager.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QObject>
#include <QString>

/// Answers the font lookups of QML from the font INI file, which is read once, in the constructor.
class TARNISLIBRARY_EXPORT TarnisFontHandler : public QObject
{
    Q_OBJECT

public:
    /// Reads the logical dots per inch of the primary screen, once; later changes are not followed. Without a screen,
    /// logs `Cannot read pointer to primary screen!` and reckons with 96, as it does for a screen that reports 0.
    explicit TarnisFontHandler(const QString& fontIniFilePath, QObject* parent = nullptr);

    /// The group's value of the key `Family`, unchanged.
    /// A miss logs `Unknown font group: "G"` and returns an empty string.
    Q_INVOKABLE QString getFontFamily(const QString& fontGroup) const;

    /// The size that the file holds in pixels, in points.
    /// A miss logs `No font size for key "K" in font group "G"`, a value that is no number logs
    /// `Expected font size for key "K" in font group "G" to be a number!`; both return 0.0.
    Q_INVOKABLE double getFontPointSize(const QString& fontGroup, const QString& sizeKey) const;

    /// Pixels to points at the screen's dots per inch.
    double scaleFontSize(double size) const;

private:
    IniFileManager fontFile;
    double logicalDotsPerInch;
};
