import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import "."

AbstractButton {
    id: button

    property string alias
    readonly property var dims: Ui.dimensions.uiElementDimensions

    width: dims["IconButton/size"]
    height: dims["IconButton/size"]
    Accessible.name: alias
    background: Rectangle {
        radius: button.dims["IconButton/cornerRadius"]
        color: Ui.colors.getColor(Theme.name, button.down ? "SurfacePressed" : "SurfaceRaised")
        border.width: button.activeFocus ? button.dims["Border/focus"] : button.dims["Border/normal"]
        border.color: Ui.colors.getColor(Theme.name, button.activeFocus ? "Focus" : "Outline")
    }

    Icon {
        anchors.centerIn: parent
        size: button.dims["IconButton/iconSize"]
        alias: button.alias
    }
}
