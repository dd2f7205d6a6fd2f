import QtQuick 2.15
import Tarnis 1.0
import "."

Text {
    property string group: "Text"
    property string size: "Normal"

    color: Ui.colors.getColor(Theme.name, "Text")
    elide: Text.ElideRight
    font.family: Ui.fonts.getFontFamily(group)
    font.pointSize: Ui.fonts.getFontPointSize(group, size)
    textFormat: Text.PlainText
}
