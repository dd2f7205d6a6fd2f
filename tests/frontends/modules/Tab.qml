import QtQuick 2.15
import Tarnis 1.0
import "lib/palette.js" as Palette

MouseArea {
    id: tab

    property string context
    property var entry
    property bool isCurrent: false
    readonly property string look: pressed ? "pressed" : isCurrent ? "current" : "idle"
    signal chosen(string name)

    width: Ui.dimensions.uiElementDimensions[Palette.dimension("Button", "minimumWidth")]
    height: Ui.dimensions.uiElementDimensions[Palette.dimension("Button", "height")]
    onClicked: chosen(entry.name)

    Rectangle {
        anchors.fill: parent
        radius: Ui.dimensions.uiElementDimensions[Palette.dimension("Button", "cornerRadius")]
        color: {
            const [group, key] = Palette.buttonPair(tab.context, tab.look);
            return Ui.colors.getColor(group, key);
        }
    }
    Image {
        anchors.centerIn: parent
        sourceSize.width: Ui.dimensions.uiElementDimensions[Palette.dimension("Button", "iconSize")]
        source: Ui.icons.getIconPathAsFileUrl(tab.entry.icon, tab.context)
    }
}
