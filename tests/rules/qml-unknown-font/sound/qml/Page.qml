import QtQuick 2.15
import Tarnis 1.0

Text {
    font { family: Ui.fonts.getFontFamily("Text"); pointSize: Ui.fonts.getFontPointSize("Text", "Normal") }
}
