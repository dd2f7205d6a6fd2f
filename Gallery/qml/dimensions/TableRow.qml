import QtQuick 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// A dimension on all displays.
Blocks.Entry {
    id: row

    property string name
    property var table // the header
    property bool isCurrent: false
    readonly property color ground: down ? Theme.pressed : isCurrent ? Theme.selected : hovered ? Theme.surface : Theme.window

    width: Math.max(table.contentWidth, table.width)
    height: 30
    padding: 0
    expression: 'Ui.dimensions.uiElementDimensions["' + name + '"]'

    background: Rectangle {
        color: row.ground
        Rectangle {
            x: row.table.nameWidth + row.table.displays.indexOf(row.table.shown) * row.table.columnWidth
            width: row.table.columnWidth
            height: parent.height
            visible: row.table.shown !== ""
            color: row.down || row.isCurrent ? row.ground : Theme.bar
        }
    }
    contentItem: Item {
        Repeater {
            model: row.table.displays
            delegate: Item {
                readonly property var written: DimensionCatalog.revision >= 0
                    ? DimensionCatalog.value(modelData, row.name) : undefined
                readonly property string remark: DimensionCatalog.revision >= 0
                    ? DimensionCatalog.remark(modelData, row.name) : ""

                x: row.table.nameWidth + index * row.table.columnWidth
                width: row.table.columnWidth
                height: row.height

                Blocks.Title {
                    anchors.verticalCenter: parent.verticalCenter
                    width: parent.width - Theme.medium
                    horizontalAlignment: Text.AlignRight
                    visible: remark === ""
                    font.bold: modelData === row.table.shown
                    text: visible ? written : ""
                }
                Blocks.Mark {
                    anchors.right: parent.right
                    anchors.rightMargin: Theme.small
                    anchors.verticalCenter: parent.verticalCenter
                    isWarning: /^(small|large)/.test(remark)
                    text: remark === "" ? "" : written === undefined ? remark : written
                }
            }
        }
        Rectangle {
            x: row.table.scrolled
            width: row.table.nameWidth
            height: parent.height
            color: row.ground
            Blocks.Title {
                x: Theme.medium
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - 2 * x
                elide: Text.ElideMiddle
                font.bold: row.isCurrent
                text: row.name
            }
        }
    }
}
