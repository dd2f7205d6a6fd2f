import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 55 qml-unknown-font
    font.pointSize: Ui.fonts.getFontPointSize("Text", "Norml")
    // expect 41 qml-unknown-font
    font.family: Ui.fonts.getFontFamily("Txt")
}
