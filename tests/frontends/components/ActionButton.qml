import QtQuick 2.15
import Tarnis 1.0

Rectangle {
    id: button

    required property string theme
    required property string context
    property bool isCurrent: false
    property alias icon: picture.alias
    property string label
    property string normal: "SurfaceRaised"
    property string marked: "Accent"
    signal clicked()

    function fill() {
        if (area.pressed)
            return isCurrent ? "AccentPressed" : "SurfacePressed";
        return isCurrent ? marked : normal;
    }

    width: Ui.dimensions.uiElementDimensions["Button/minimumWidth"]
    height: Ui.dimensions.uiElementDimensions["Button/height"]
    radius: Ui.dimensions.uiElementDimensions["Button/cornerRadius"]
    color: Ui.colors.getColor(theme, fill())
    border.width: Ui.dimensions.uiElementDimensions[activeFocus ? "Border/focus" : "Border/normal"]
    border.color: Ui.colors.getColor(theme, activeFocus ? "Focus" : "Outline")

    Icon {
        id: picture

        x: Ui.dimensions.uiElementDimensions["Button/padding"]
        anchors.verticalCenter: parent.verticalCenter
        context: button.context
        dimension: "Button/iconSize"
    }
    Caption {
        anchors.left: picture.right
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        theme: button.theme
        role: "Button"
        tint: button.isCurrent ? "TextOnAccent" : "Text"
        text: Ui.texts.translatedTexts[button.label]
    }
    MouseArea {
        id: area

        anchors.fill: parent
        onClicked: {
            button.forceActiveFocus();
            button.clicked();
        }
    }
}
