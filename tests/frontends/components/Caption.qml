import QtQuick 2.15
import Tarnis 1.0

Text {
    id: caption

    required property string theme
    property string role: "Normal"
    property string tint: "Text"
    property string family: "Text"

    color: Ui.colors.getColor(caption.theme, caption.tint)
    font.family: Ui.fonts.getFontFamily(caption.family)
    font.pointSize: Ui.fonts.getFontPointSize(caption.family, caption.role)
    elide: Text.ElideRight
    textFormat: Text.PlainText
}
