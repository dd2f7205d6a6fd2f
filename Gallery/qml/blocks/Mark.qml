import QtQuick 2.15
import "../theme"

// Draws the designer's attention to a problem.
Rectangle {
    property alias text: label.text
    property bool isWarning: false

    visible: text !== ""
    width: Math.min(label.implicitWidth + 10, parent ? parent.width : label.implicitWidth + 10)
    height: label.implicitHeight + 4
    radius: 3
    color: isWarning ? Theme.warning : Theme.error

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 4)
        elide: Text.ElideRight
        color: Theme.textOnError
        font.pixelSize: Theme.captionSize
        textFormat: Text.PlainText
    }
}
