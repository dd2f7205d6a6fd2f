import QtQuick 2.15
import Tarnis 1.0
import "lib/palette.js" as Palette
import "lib/names.js" as Names

Item {
    id: page

    property string context
    property bool isMuted: false
    readonly property var texts: Ui.texts.translatedTexts

    function textOf(name) {
        return texts[Names.text("Dialog", name)];
    }

    function buttonText(word) {
        return texts[Names.text("Button", Names.capitalized(word))];
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: Ui.dimensions.uiElementDimensions["Dialog/padding"]
        radius: Ui.dimensions.uiElementDimensions["Dialog/cornerRadius"]
        color: {
            let key = "Alarm";
            if (page.isMuted)
                key = "Warning";
            return Ui.colors.getColor(Palette.theme(page.context), key);
        }

        Text {
            wrapMode: Text.Wrap
            width: parent.width
            color: Ui.colors.getColor(Palette.theme(page.context), "TextOnAlarm")
            font.pointSize: Ui.fonts.getFontPointSize("Heading", page.isMuted ? "Group" : "Alarm")
            text: page.textOf("AlarmBody").arg(page.texts["text://Room/Stairs"]).arg("17:04")
        }
        Text {
            anchors.bottom: parent.bottom
            font.pointSize: Palette.points(Ui.fonts, "small")
            text: page.isMuted ? page.textOf("ResetQuestion") : page.textOf("WindowOpen")
        }
    }
    Row {
        anchors.bottom: parent.bottom

        Repeater {
            model: ["acknowledge", "cancel"]
            delegate: MouseArea {
                width: Ui.dimensions.uiElementDimensions["Notification/width"]
                height: Ui.dimensions.uiElementDimensions["Notification/height"]
                onClicked: page.isMuted = modelData === "acknowledge"

                Text {
                    text: page.buttonText(modelData)
                }
            }
        }
    }
}
