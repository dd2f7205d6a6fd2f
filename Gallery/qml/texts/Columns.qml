import QtQuick 2.15
import "../theme"

// The widths of the columns, how far those of the languages are scrolled, in pixels, and the lines between them.
Item {
    id: columns

    property int count
    property real offset: 0

    readonly property int leastWidth: 170
    readonly property int urlWidth: Math.max(170, Math.min(300, width * 0.24))
    readonly property real visibleWidth: width - urlWidth
    readonly property real columnWidth: Math.max(leastWidth, visibleWidth / Math.max(1, count))
    readonly property real contentWidth: Math.max(1, columnWidth * count)
    readonly property real end: Math.max(0, contentWidth - visibleWidth)
    readonly property bool isScrollable: end > 0

    function scroll(columns) {
        offset = Math.max(0, Math.min(end, offset + columns * columnWidth))
    }
    onEndChanged: offset = Math.min(offset, end)

    Item {
        x: columns.urlWidth
        width: columns.visibleWidth
        height: parent.height
        clip: true

        Repeater {
            model: columns.count
            Rectangle {
                x: index * columns.columnWidth - columns.offset
                width: 1
                height: parent.height
                color: Theme.line
            }
        }
    }
}
