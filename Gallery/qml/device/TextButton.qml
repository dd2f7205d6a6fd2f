import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import "."

AbstractButton {
    id: button

    property bool isPrimary: false
    readonly property var dims: Ui.dimensions.uiElementDimensions

    width: Math.max(dims["Button/minimumWidth"], label.implicitWidth + 2 * dims["Button/padding"])
    height: dims["Button/height"]
    background: Rectangle {
        radius: button.dims["Button/cornerRadius"]
        color: Ui.colors.getColor(Theme.name, button.isPrimary ? (button.down ? "AccentPressed" : "Accent")
                                                               : (button.down ? "SurfacePressed" : "SurfaceRaised"))
        border.width: button.activeFocus ? button.dims["Border/focus"] : button.dims["Border/normal"]
        border.color: Ui.colors.getColor(Theme.name, button.activeFocus ? "Focus" : "Outline")
    }

    Label {
        id: label

        anchors.centerIn: parent
        size: "Button"
        color: Ui.colors.getColor(Theme.name, button.isPrimary ? "TextOnAccent" : "Text")
        text: button.text
    }
}
