import QtQuick 2.15
import Tarnis 1.0
import "."

Rectangle {
    id: dialog

    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property var texts: Ui.texts.translatedTexts
    signal closed()

    color: Ui.colors.getColor(Theme.name, "Scrim")

    // Keeps the mouse away from the page behind the dialog.
    MouseArea {
        anchors.fill: parent
    }
    Rectangle {
        anchors.centerIn: parent
        width: dialog.dims["Dialog/width"]
        height: Math.max(dialog.dims["Dialog/minimumHeight"],
                         body.y + body.height + buttons.height + 2 * dialog.dims["Dialog/padding"])
        radius: dialog.dims["Dialog/cornerRadius"]
        color: Ui.colors.getColor(Theme.name, "SurfaceRaised")
        border.width: dialog.dims["Border/focus"]
        border.color: Ui.colors.getColor(Theme.name, "Alarm")

        Icon {
            id: icon

            x: dialog.dims["Dialog/padding"]
            y: dialog.dims["Dialog/padding"]
            size: dialog.dims["Dialog/iconSize"]
            alias: "alarm"
        }
        Label {
            anchors.left: icon.right
            anchors.leftMargin: dialog.dims["Spacing/medium"]
            anchors.verticalCenter: icon.verticalCenter
            group: "Heading"
            size: "Dialog"
            text: dialog.texts["text://Dialog/AlarmTitle"]
        }
        Label {
            id: body

            x: dialog.dims["Dialog/padding"]
            y: icon.y + icon.height + dialog.dims["Spacing/medium"]
            width: parent.width - 2 * x
            wrapMode: Text.Wrap
            text: dialog.texts["text://Dialog/AlarmBody"].arg(dialog.texts["text://Room/Hallway"]).arg("17:04") + "\n"
                + dialog.texts["text://Dialog/WindowOpen"]
        }
        Row {
            id: buttons

            anchors.right: parent.right
            anchors.rightMargin: dialog.dims["Dialog/padding"]
            anchors.bottom: parent.bottom
            anchors.bottomMargin: dialog.dims["Dialog/padding"]
            spacing: dialog.dims["Dialog/buttonGap"]

            TextButton {
                text: dialog.texts["text://Button/Cancel"]
                onClicked: dialog.closed()
            }
            TextButton {
                isPrimary: true
                focus: true
                text: dialog.texts["text://Button/Acknowledge"]
                onClicked: dialog.closed()
            }
        }
    }
}
