import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import "../theme"

// Tells what is wrong, above the last good view.
Rectangle {
    property alias text: label.text
    property alias action: button.text
    signal triggered()

    height: visible ? Math.max(button.height, label.height) + Theme.medium : 0
    visible: text !== ""
    color: Theme.errorSurface

    Text {
        id: label

        x: Theme.medium
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - button.width - 3 * Theme.medium
        height: Math.min(implicitHeight, 96)
        clip: true
        color: Theme.textOnErrorSurface
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    Button {
        id: button

        anchors.right: parent.right
        anchors.rightMargin: Theme.medium
        anchors.verticalCenter: parent.verticalCenter
        height: Theme.controlHeight
        text: "Retry"
        onClicked: parent.triggered()
    }
}
