import QtQuick 2.15
import "../blocks" as Blocks
import "../theme"

// The URL, and beside it one cell for each language.
Item {
    id: line

    property var columns
    property string url
    property bool isHeader: false
    property alias model: repeater.model
    property alias cell: repeater.delegate

    implicitHeight: Math.max(urlText.height, cells.height) + 2 * Theme.small

    Rectangle {
        anchors.fill: parent
        visible: line.isHeader
        color: Theme.surface
    }
    Rectangle {
        y: parent.height - height
        width: parent.width
        height: 1
        color: Theme.line
    }
    Text {
        id: urlText

        x: Theme.medium
        y: Theme.small
        width: line.columns.urlWidth - 2 * Theme.medium
        color: line.isHeader ? Theme.text : Theme.textSecondary
        font.bold: line.isHeader
        font.pixelSize: line.isHeader ? Theme.bodySize : Theme.captionSize
        textFormat: Text.PlainText
        wrapMode: Text.WrapAnywhere
        text: line.url
    }
    Item {
        x: line.columns.urlWidth
        width: parent.width - x
        height: parent.height
        clip: true

        Row {
            id: cells

            x: -line.columns.offset
            y: Theme.small
            Repeater {
                id: repeater
            }
        }
    }
}
