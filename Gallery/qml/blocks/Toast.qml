import QtQuick 2.15
import Tarnis.Gallery 1.0
import "../theme"

// Tells for two seconds what has been copied.
Rectangle {
    width: label.implicitWidth + 2 * Theme.medium
    height: Theme.controlHeight
    radius: height / 2
    visible: time.running
    color: Theme.accent

    Text {
        id: label

        anchors.centerIn: parent
        color: Theme.textOnAccent
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
    }
    Timer {
        id: time

        interval: 2000
    }
    Connections {
        target: View
        function onCopied(text) {
            label.text = "Copied: " + text
            time.restart()
        }
    }
}
