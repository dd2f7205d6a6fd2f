import QtQuick 2.15

// Draws the designer's attention to a problem.
Rectangle {
    property alias text: label.text

    visible: text !== ""
    width: Math.min(label.implicitWidth + 10, parent ? parent.width : label.implicitWidth + 10)
    height: label.implicitHeight + 4
    radius: 3
    color: "#b3261e"

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 4)
        elide: Text.ElideRight
        color: "white"
        font.pixelSize: 11
        textFormat: Text.PlainText
    }
}
