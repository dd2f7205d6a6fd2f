import QtQuick 2.15
import Tarnis 1.0

Rectangle {
    id: bar

    required property string theme
    required property string context
    property alias heading: title
    property alias leading: left
    property alias trailing: right

    width: parent.width
    height: Ui.dimensions.uiElementDimensions["Header/height"]
    color: Ui.colors.getColor(theme, "Surface")

    Icon {
        id: left

        x: Ui.dimensions.uiElementDimensions["Header/padding"]
        anchors.verticalCenter: parent.verticalCenter
        context: bar.context
        dimension: "Header/iconSize"
    }
    Caption {
        id: title

        anchors.centerIn: parent
        theme: bar.theme
        family: "Heading"
        role: "Page"
    }
    Icon {
        id: right

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        context: bar.context
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Ui.dimensions.uiElementDimensions["Border/thin"]
        color: Ui.colors.getColor(bar.theme, "Divider")
    }
}
