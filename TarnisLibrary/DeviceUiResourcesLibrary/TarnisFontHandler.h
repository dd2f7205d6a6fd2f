#pragma once

#include "Common/IniTools/IniFileManager.h"
#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QObject>
#include <QString>

/// Answers QML's font lookups from the font INI file, which is read once, in the constructor.
class TARNISLIBRARY_EXPORT TarnisFontHandler : public QObject
{
    Q_OBJECT

public:
    /// The key of a font group that holds its family; every other key is a size. Hidden: each binary has its own copy.
    Q_DECL_HIDDEN static inline const QString familyKey = QStringLiteral("Family");

    /// Reads the logical dots per inch of the primary screen once; later changes are not followed. Without a screen, it
    /// logs `Cannot read pointer to primary screen!` and assumes 96, as it does for a screen that reports 0.
    explicit TarnisFontHandler(const QString& fontIniFilePath, QObject* parent = nullptr);

    /// The group's value of familyKey, unchanged.
    /// A miss logs `Unknown font group: "G"` and returns an empty string.
    Q_INVOKABLE QString getFontFamily(const QString& fontGroup) const;

    /// The size in points; the file contains it in pixels.
    /// A miss logs `No font size for key "K" in font group "G"`. A value that is not a number logs
    /// `Expected font size for key "K" in font group "G" to be a number!`. Both return 0.0.
    Q_INVOKABLE double getFontPointSize(const QString& fontGroup, const QString& sizeKey) const;

    /// Converts pixels to points at the screen's dots per inch.
    double scaleFontSize(double size) const;

private:
    IniFileManager fontFile;
    double logicalDotsPerInch;
};
