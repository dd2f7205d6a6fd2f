import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    readonly property var entries: ColorCatalog.revision >= 0 ? ColorCatalog.entries("") : []
    readonly property var names: entries.map(entry => entry.group + "/" + entry.key)
    property string background: "white"
    readonly property int backgroundIndex: names.indexOf(background)
    readonly property string backgroundColor: backgroundIndex < 0
        ? background
        : Ui.colors.getColor(entries[backgroundIndex].group, entries[backgroundIndex].key)

    title: "Colors"
    subtitle: cells.count + " colors"
    isEmpty: cells.count === 0
    emptyText: "The color file contains no colors."
    controls: [
        Blocks.Caption {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: "Contrast against"
        },
        Blocks.Choice {
            width: 260
            label: "Background color for the contrast ratio"
            model: ["white", "black"].concat(page.names)
            value: page.background
            onChosen: value => page.background = value
        }
    ]

    Blocks.Cells {
        id: cells

        anchors.fill: parent
        leftMargin: 8
        cellWidth: Math.floor((width - 16) / Math.floor((width - 16) / 150))
        cellHeight: 124
        rows: ColorCatalog.revision >= 0 ? ColorCatalog.entries(View.search) : []
        delegate: Blocks.Entry {
            readonly property string value: Ui.colors.getColor(modelData.group, modelData.key)
            readonly property bool isColor: ColorCatalog.isColor(value)
            readonly property double contrast: ColorCatalog.contrast(value, page.backgroundColor)

            width: GridView.view.cellWidth
            height: GridView.view.cellHeight
            expression: 'Ui.colors.getColor("' + modelData.group + '", "' + modelData.key + '")'
            contentItem: Column {
                leftPadding: 4
                Rectangle {
                    width: parent.width - 8
                    height: 50
                    border.color: Theme.line
                    color: isColor ? value : "transparent"
                    Blocks.Mark {
                        anchors.centerIn: parent
                        text: isColor ? "" : "not a color"
                    }
                }
                Blocks.Title {
                    width: parent.width - 8
                    text: modelData.key
                }
                Blocks.Caption {
                    width: parent.width - 8
                    text: modelData.group
                }
                Blocks.Caption {
                    width: parent.width - 8
                    text: value + (isColor ? "   " + contrast.toFixed(2) + ":1" : "")
                }
            }
        }
    }
}
