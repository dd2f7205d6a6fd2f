import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    title: "Dimensions"
    subtitle: list.count + " dimensions in pixels"
    isEmpty: list.count === 0
    emptyText: "The dimension files contain no dimensions."

    Blocks.Rows {
        id: list

        anchors.fill: parent
        readonly property var dimensions: Ui.dimensions.uiElementDimensions

        rows: DimensionCatalog.revision >= 0 ? DimensionCatalog.names(View.search) : []
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
                    text: name in list.dimensions ? list.dimensions[name] : "–"
                }
                Repeater {
                    model: DimensionCatalog.displays
                    Blocks.Caption {
                        readonly property var number: DimensionCatalog.value(modelData, name)

                        width: 104
                        color: number === undefined ? Theme.error : Theme.textSecondary
                        text: modelData + ": " + (number === undefined ? "missing" : number)
                    }
                }
                // Drawn at its real length, as far as there is room.
                Rectangle {
                    width: Math.max(0, Math.min(list.dimensions[name] || 0, page.width - x - 16))
                    height: 14
                    color: Theme.accent
                }
            }
        }
    }
}
