import QtQuick 2.15
import Tarnis 1.0
import "."

Rectangle {
    id: tile

    property string alias
    property string title
    property string value
    property string accent: "Text"
    property bool isWide: false
    default property alias controls: controlRow.data
    readonly property var dims: Ui.dimensions.uiElementDimensions

    width: dims["Tile/width"] * (isWide ? 2 : 1) + (isWide ? dims["Page/columnGap"] : 0)
    height: dims["Tile/height"]
    radius: dims["Tile/cornerRadius"]
    color: Ui.colors.getColor(Theme.name, "SurfaceRaised")
    border.width: dims["Border/thin"]
    border.color: Ui.colors.getColor(Theme.name, "Outline")

    Icon {
        id: icon

        x: tile.dims["Tile/padding"]
        y: tile.dims["Tile/padding"]
        size: tile.dims["Tile/iconSize"]
        alias: tile.alias
    }
    Label {
        anchors.left: icon.right
        anchors.leftMargin: tile.dims["Spacing/small"]
        anchors.right: parent.right
        anchors.rightMargin: tile.dims["Tile/padding"]
        anchors.verticalCenter: icon.verticalCenter
        color: Ui.colors.getColor(Theme.name, "TextSecondary")
        maximumLineCount: 2
        wrapMode: Text.Wrap
        text: tile.title
    }
    Label {
        x: tile.dims["Tile/padding"]
        anchors.bottom: parent.bottom
        anchors.bottomMargin: tile.dims["Tile/padding"]
        width: parent.width - 2 * x - (controlRow.children.length > 0 ? controlRow.width : 0)
        height: tile.dims["Tile/valueHeight"]
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: Ui.fonts.getFontPointSize("Text", "Small")
        group: "Numeric"
        size: "Value"
        color: Ui.colors.getColor(Theme.name, tile.accent)
        text: tile.value
    }
    Row {
        id: controlRow

        anchors.right: parent.right
        anchors.rightMargin: tile.dims["Spacing/small"]
        anchors.bottom: parent.bottom
        anchors.bottomMargin: tile.dims["Tile/padding"]
        spacing: tile.dims["Spacing/tiny"]
    }
}
