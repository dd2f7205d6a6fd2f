import QtQuick 2.15
import "../theme"

Rectangle {
    z: 2
    color: "transparent"
    border.width: ListView.view && ListView.view.activeFocus || GridView.view && GridView.view.activeFocus ? 2 : 0
    border.color: Theme.accent
}
