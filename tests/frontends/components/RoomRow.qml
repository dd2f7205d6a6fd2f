import QtQuick 2.15
import Tarnis 1.0

Rectangle {
    id: row

    required property string name
    required property string glyph
    required property string tint
    required property string mode
    required property int degrees
    property string theme
    property string context
    property bool isOpen: false

    height: Ui.dimensions.uiElementDimensions["List/rowHeight"] + (isOpen ? details.height : 0)
    color: Ui.colors.getColor(theme, area.pressed ? "SurfacePressed" : "Surface")

    Icon {
        id: picture

        x: Ui.dimensions.uiElementDimensions["List/padding"]
        alias: row.glyph
        context: row.context
        dimension: "List/iconSize"
    }
    Caption {
        anchors.left: picture.right
        anchors.leftMargin: Ui.dimensions.uiElementDimensions["Spacing/medium"]
        theme: row.theme
        text: Ui.texts.translatedTexts[row.name]
    }
    Caption {
        anchors.right: parent.right
        theme: row.theme
        family: "Numeric"
        role: "Setpoint"
        tint: row.tint
        text: row.degrees + " °C"
    }
    MouseArea {
        id: area

        anchors.fill: parent
        onClicked: row.isOpen = !row.isOpen
    }
    Loader {
        id: details

        anchors.bottom: parent.bottom
        active: row.isOpen
        sourceComponent: Caption {
            theme: row.theme
            role: "Small"
            tint: "Success"
            text: Ui.texts.translatedTexts[row.mode]
        }
    }
}
