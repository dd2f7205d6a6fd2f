import QtQuick 2.15

// What shows through transparent colors; the same in both themes of the gallery.
Image {
    fillMode: Image.Tile
    horizontalAlignment: Image.AlignLeft
    verticalAlignment: Image.AlignTop
    sourceSize: Qt.size(16, 16)
    source: "checkerboard.svg"
}
