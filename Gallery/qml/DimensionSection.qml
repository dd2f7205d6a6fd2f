import QtQuick 2.15
import Tarnis 1.0

Section {
    id: section

    property var dimensions: Ui.dimensions.uiElementDimensions

    title: "Dimensions in pixels"

    Grid {
        width: parent.width
        columns: 3
        columnSpacing: 16
        rowSpacing: 4
        Repeater {
            model: Object.keys(section.dimensions)
            Row {
                width: (section.width - 32) / 3
                spacing: 8
                Caption {
                    width: 170
                    text: modelData
                }
                Caption {
                    width: 40
                    horizontalAlignment: Text.AlignRight
                    text: section.dimensions[modelData]
                }
                // One pixel for a pixel, as far as there is room.
                Rectangle {
                    width: Math.min(section.dimensions[modelData], parent.width - x)
                    height: 12
                    color: "#5b8db8"
                }
            }
        }
    }
}
