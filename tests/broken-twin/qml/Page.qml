import QtQuick 2.15
import Tarnis 1.0

Item {
    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property color accent: Ui.colors.getColor("Day", "Acent")
    width: dims["Tile/width"] + dims["Tile/height"]
    height: dims["Page/paddin"]

    Text {
        font.family: Ui.fonts.getFontFamily("Text")
        font.pointSize: Ui.fonts.getFontPointSize("Text", "Norml")
        color: Ui.colors.getColor("Day", "Text")
        text: Ui.texts.translatedTexts["text://Home/Titel"] + Ui.texts.translatedTexts["text://Home/Title"]
    }
    Image {
        source: Ui.icons.getIconPathAsFileUrl("hone", "nightMode")
    }
    readonly property var used: ["Background", "Accent", "Normal", "Small", "Large", "Page", "home", "back", "next",
        "alarm", "wifi", "lock", "up", "down", "plus", "minus", "text://Home/Until", "text://Home/Room"]
}
