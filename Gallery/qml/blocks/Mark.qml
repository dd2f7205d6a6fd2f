import QtQuick 2.15
import "../theme"

// Draws the designer's attention to a problem.
Rectangle {
    property alias text: label.text
    property alias textColor: label.color
    property bool isWarning: false
    property int margin: 5 // left and right of the text

    visible: text !== ""
    width: Math.min(label.implicitWidth + 2 * margin, parent ? parent.width : label.implicitWidth + 2 * margin)
    height: label.implicitHeight + 4
    radius: 3
    color: isWarning ? Theme.warning : Theme.error

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 2 * parent.margin)
        elide: Text.ElideRight
        color: Theme.textOnError
        font.pixelSize: Theme.captionSize
        textFormat: Text.PlainText
    }
}
