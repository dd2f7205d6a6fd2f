import QtQuick 2.15
import QtQuick.Window 2.15
import Tarnis 1.0

Window {
    width: 320
    height: 160
    visible: true

    Text {
        anchors.fill: parent
        wrapMode: Text.Wrap
        text: Ui.problem
    }

    // Created when the service has answered. Until then all lookups are empty.
    Loader {
        anchors.fill: parent
        active: Ui.ready
        sourceComponent: Rectangle {
            color: Ui.colors.getColor("Day", "Background")

            Row {
                anchors.centerIn: parent
                spacing: 16

                Image {
                    source: Ui.icons.getIconPathAsFileUrl("home")
                }

                Text {
                    color: Ui.colors.getColor("Day", "Text")
                    font.family: Ui.fonts.getFontFamily("Text")
                    font.pointSize: Ui.fonts.getFontPointSize("Text", "Button")
                    height: Ui.dimensions.uiElementDimensions["Button/height"]
                    text: Ui.texts.translatedTexts["text://Button/Ok"]
                    Component.onCompleted: console.log(color, font.family, font.pointSize, height, text)
                }
            }
        }
    }
}
