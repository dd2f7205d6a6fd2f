import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis.Gallery 1.0
import "../theme"

// An entry of a list or grid. A click copies the QML expression for its value.
AbstractButton {
    property string expression

    text: expression
    focusPolicy: Qt.NoFocus
    Accessible.description: "Copies the expression"
    onClicked: View.copy(expression)

    background: Rectangle {
        color: parent.down ? Theme.pressed : parent.hovered ? Theme.surface : "transparent"
    }
}
