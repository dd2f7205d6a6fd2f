import QtQuick 2.15
import "../blocks" as Blocks
import "../theme"

// The header of the table, which also fixes its columns. The column of names stays while the table scrolls.
Rectangle {
    id: columns

    property var displays
    property string shown
    property int scrolled: 0
    readonly property int leastColumnWidth: 96
    readonly property int nameWidth: Math.max(130, Math.min(220, width - displays.length * leastColumnWidth))
    readonly property int columnWidth: Math.max(leastColumnWidth, (width - nameWidth) / Math.max(1, displays.length))
    readonly property int comfortableWidth: 220 + displays.length * 130
    readonly property int contentWidth: nameWidth + displays.length * columnWidth

    height: Theme.rowHeight + Theme.small
    color: Theme.surface
    clip: true

    Repeater {
        model: columns.displays
        delegate: Rectangle {
            readonly property bool isShown: modelData === columns.shown

            x: columns.nameWidth + index * columns.columnWidth - columns.scrolled
            width: columns.columnWidth
            height: columns.height
            color: isShown ? Theme.bar : "transparent"

            Column {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - Theme.medium
                Blocks.Title {
                    width: parent.width
                    horizontalAlignment: Text.AlignRight
                    text: modelData
                }
                Blocks.Caption {
                    width: parent.width
                    horizontalAlignment: Text.AlignRight
                    color: isShown ? Theme.text : Theme.textSecondary
                    text: isShown ? "px, shown" : "px"
                }
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 3
                visible: isShown
                color: Theme.accent
            }
        }
    }
    Rectangle {
        width: columns.nameWidth
        height: parent.height
        color: parent.color

        Blocks.Title {
            x: Theme.medium
            anchors.verticalCenter: parent.verticalCenter
            text: "Dimension"
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
}
