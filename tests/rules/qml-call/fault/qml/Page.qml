import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 15 qml-call
    color: Ui.colours.getColor("Day", "Text")
    // expect 20 qml-call
    text: Ui.icons.getIcon("home")
    // expect 30 qml-call
    font.pointSize: Ui.fonts.getFontPointSize("Text")
}
