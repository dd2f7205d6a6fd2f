import QtQuick 2.15
import Tarnis 1.0
// A square of 100 pixels, and another one beside it.
Rectangle {
    property string context
    width: 1280
    height: 800
    color: "white"
    Row {
        width: 200
        Rectangle { objectName: "first"; width: 100; height: 100; color: "#fe01fd" }
        Rectangle { objectName: "second"; width: 100; height: 100; color: "#01fe02" }
    }
    Text { y: 200; text: parent.context + " " + Ui.texts.translatedTexts["text://A/Yes"] }
}
