import QtQuick 2.15
import Tarnis 1.0
import "."

Rectangle {
    id: row

    property string alias
    property string title
    property string value
    readonly property var dims: Ui.dimensions.uiElementDimensions

    height: dims["List/rowHeight"]
    color: Ui.colors.getColor(Theme.name, "SurfaceRaised")

    Icon {
        id: icon

        x: row.dims["List/padding"]
        anchors.verticalCenter: parent.verticalCenter
        size: row.dims["List/iconSize"]
        alias: row.alias
    }
    Label {
        anchors.left: icon.right
        anchors.leftMargin: row.dims["List/padding"]
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width / 2
        text: row.title
    }
    Label {
        anchors.right: arrow.left
        anchors.rightMargin: row.dims["Spacing/small"]
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width / 3
        horizontalAlignment: Text.AlignRight
        color: Ui.colors.getColor(Theme.name, "TextSecondary")
        size: "Small"
        text: row.value
    }
    Icon {
        id: arrow

        anchors.right: parent.right
        anchors.rightMargin: row.dims["List/padding"]
        anchors.verticalCenter: parent.verticalCenter
        size: row.dims["List/indicatorSize"]
        alias: "next"
    }
    Rectangle {
        x: row.dims["List/dividerInset"]
        anchors.bottom: parent.bottom
        width: parent.width - 2 * x
        height: row.dims["Border/thin"]
        color: Ui.colors.getColor(Theme.name, "Divider")
    }
}
