import QtQuick 2.15
import Tarnis 1.0

Item {
    property var a: Ui.colour.getColor("Day", "Text") // unknown no member "colour"
    property var b: Ui.colors.getColour("Day", "Text") // unknown no member "getColour"
    property var c: Ui.dimensions.dimensions["Tile/width"] // unknown no member "dimensions"
    property var d: Ui.colors.getColor("Text") // unknown needs the arguments
    property var e: Ui.icons.getIconPath() // unknown needs the arguments
    property var f: Ui.colors.getColor("", "Text") // unknown empty name
    property var g: Ui.colors.getColor("Day", "") // unknown empty name
    property var i: Ui.colors.getColor(
        "", "Text") // unknown empty name
    property var j: Ui.texts.translatedTexts[
        ""] // unknown empty name
    property var h: Ui.language + Ui.ready + Ui.colors.objectName
}
