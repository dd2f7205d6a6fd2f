import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks

Blocks.Rows {
    id: page

    readonly property var dimensions: Ui.dimensions.uiElementDimensions

    rows: Catalog.revision >= 0 ? Catalog.dimensions(View.search) : []
    delegate: Blocks.Entry {
        readonly property string name: modelData

        width: page.width
        height: 30
        expression: 'Ui.dimensions.uiElementDimensions["' + name + '"]'
        contentItem: Row {
            leftPadding: 8
            spacing: 8
            Blocks.Title {
                width: 190
                text: name
            }
            Blocks.Title {
                width: 44
                horizontalAlignment: Text.AlignRight
                text: name in page.dimensions ? page.dimensions[name] : "–"
            }
            Repeater {
                model: Catalog.displays
                Blocks.Caption {
                    readonly property var number: Catalog.dimension(modelData, name)

                    width: 104
                    color: number === undefined ? "#b3261e" : "#404850"
                    text: modelData + ": " + (number === undefined ? "missing" : number)
                }
            }
            // Drawn at its real length, as far as there is room.
            Rectangle {
                width: Math.max(0, Math.min(page.dimensions[name] || 0, page.width - x - 16))
                height: 14
                color: "#5b8db8"
            }
        }
    }
}
