import QtQuick 2.15
import Tarnis 1.0

Item {
    id: pad

    required property string theme
    required property string context
    property bool isWrong: false
    readonly property var keys: ({ ok: "confirm", clear: "close", up: "up", down: "down" })

    Grid {
        anchors.centerIn: parent
        columns: 2
        spacing: Ui.dimensions.uiElementDimensions["Keypad/gap"]

        Repeater {
            model: Object.keys(pad.keys)
            delegate: Rectangle {
                id: key

                required property string modelData

                width: Ui.dimensions.uiElementDimensions["Keypad/keyWidth"]
                height: Ui.dimensions.uiElementDimensions["Keypad/keyHeight"]
                radius: Ui.dimensions.uiElementDimensions["Keypad/cornerRadius"]
                color: Ui.colors.getColor(pad.theme, pad.isWrong ? "Alarm" : "SurfaceRaised")

                Icon {
                    anchors.centerIn: parent
                    alias: pad.keys[key.modelData]
                    context: pad.context
                    dimension: "Icon/small"
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: pad.isWrong = key.modelData === "ok"
                }
            }
        }
    }
    Caption {
        anchors.bottom: parent.bottom
        theme: pad.theme
        family: "Heading"
        role: pad.isWrong ? "Alarm" : "Welcome"
        tint: pad.isWrong ? "TextOnAlarm" : "Text"
        text: Ui.texts.translatedTexts[pad.isWrong ? "text://Dialog/AlarmTitle" : "text://Button/Ok"]
    }
}
