import QtQuick 2.15
import Tarnis 1.0

Rectangle {
    z: 2
    color: "transparent"
    border.width: ListView.view && ListView.view.activeFocus || GridView.view && GridView.view.activeFocus ? 2 : 0
    border.color: "#1a5fb4"
}
