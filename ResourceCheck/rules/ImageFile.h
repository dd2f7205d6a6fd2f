#pragma once

#include <QString>

/// An image as Qt's readers take it, found by its content.
class ImageFile
{
public:
    /// Why a device cannot show the file as what its name says it is; null if it can. What Qt's readers have to log
    /// meanwhile is dropped.
    static QString fault(const QString& path);
};
