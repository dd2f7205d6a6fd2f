#pragma once

#include <QString>

/// An image as Qt's readers take it, found by its content.
class ImageFile
{
public:
    /// Why a device cannot show the file as what its name says it is, as in "is no readable PNG"; null if it can.
    /// What Qt logs meanwhile is dropped.
    static QString fault(const QString& path);
};
