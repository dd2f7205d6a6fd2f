#pragma once

#include <QImage>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVector>

namespace Gallery
{

/// What the change of the resources does to the screen: a front end with the old and with the new ones.
struct ScreenComparison {
    /// Where the front end looks different. A picture is null if that side does not support the display.
    struct Change {
        QString display;
        QImage oldPicture;
        QImage newPicture;
    };

    struct Look {
        QUrl qmlFile;
        QString context;
        QString language;
    };

    /// Draws everything. Needs a display, see FrontEndPictures::canDraw().
    static ScreenComparison of(const QString& oldDirectory, const QString& newDirectory, const Look& look);

    QVector<Change> changes;
    QStringList sameDisplays;
    QStringList problems; ///< Why there are no pictures.
};

} // namespace Gallery
