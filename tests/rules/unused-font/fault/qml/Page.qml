import QtQuick 2.15
import Tarnis 1.0

Text {
    color: Ui.colors.getColor("Day", "Text")
    readonly property color background: Ui.colors.getColor("Day", "Background")
    font { family: Ui.fonts.getFontFamily("Text"); pointSize: Ui.fonts.getFontPointSize("Text", "Normal") }
    width: Ui.dimensions.uiElementDimensions["Tile/width"]
    readonly property url icon: Ui.icons.getIconPathAsFileUrl("home")
    text: Ui.texts.translatedTexts["text://Button/Ok"]
}
