import QtQuick 2.15
import Tarnis 1.0
import "."

Rectangle {
    id: header

    property string title
    property alias leftIcon: leftButton.alias
    readonly property var dims: Ui.dimensions.uiElementDimensions
    signal leftClicked()

    width: parent.width
    height: dims["Header/height"]
    color: Ui.colors.getColor(Theme.name, "Surface")

    RoundButton {
        id: leftButton

        x: header.dims["Header/padding"]
        anchors.verticalCenter: parent.verticalCenter
        width: height
        height: parent.height - header.dims["Spacing/tiny"]
        onClicked: header.leftClicked()
    }
    Label {
        anchors.left: leftButton.right
        anchors.leftMargin: header.dims["Header/padding"]
        anchors.right: clock.left
        anchors.verticalCenter: parent.verticalCenter
        group: "Heading"
        size: "Page"
        text: header.title
    }
    Label {
        id: clock

        anchors.right: wifi.left
        width: header.dims["Header/clockWidth"]
        anchors.verticalCenter: parent.verticalCenter
        group: "Numeric"
        size: "Clock"
        text: "17:04"
    }
    Icon {
        id: wifi

        anchors.right: parent.right
        anchors.rightMargin: header.dims["Header/padding"]
        anchors.verticalCenter: parent.verticalCenter
        size: header.dims["Header/iconSize"]
        alias: "wifi"
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: header.dims["Border/thin"]
        color: Ui.colors.getColor(Theme.name, "Divider")
    }
}
