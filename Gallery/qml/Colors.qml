import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks

Item {
    id: page

    readonly property var entries: Catalog.revision >= 0 ? Catalog.colors("") : []
    readonly property var names: entries.map(entry => entry.group + "/" + entry.key)
    property string background: "white"
    readonly property int backgroundIndex: names.indexOf(background)
    readonly property string backgroundColor: backgroundIndex < 0
        ? background
        : Ui.colors.getColor(entries[backgroundIndex].group, entries[backgroundIndex].key)

    Row {
        id: bar

        x: 12
        height: 44
        spacing: 8

        Blocks.Caption {
            anchors.verticalCenter: parent.verticalCenter
            text: "Contrast against"
        }
        Blocks.Choice {
            anchors.verticalCenter: parent.verticalCenter
            width: 260
            label: "Background color for the contrast ratio"
            model: ["white", "black"].concat(page.names)
            value: page.background
            onChosen: value => page.background = value
        }
    }

    Blocks.Cells {
        anchors.fill: parent
        anchors.topMargin: bar.height
        leftMargin: 8
        cellWidth: Math.floor((width - 16) / Math.floor((width - 16) / 150))
        cellHeight: 124
        rows: Catalog.revision >= 0 ? Catalog.colors(View.search) : []
        delegate: Blocks.Entry {
            readonly property string value: Ui.colors.getColor(modelData.group, modelData.key)
            readonly property bool isColor: Catalog.isColor(value)
            readonly property double contrast: Catalog.contrast(value, page.backgroundColor)

            width: GridView.view.cellWidth
            height: GridView.view.cellHeight
            expression: 'Ui.colors.getColor("' + modelData.group + '", "' + modelData.key + '")'
            contentItem: Column {
                leftPadding: 4
                Rectangle {
                    width: parent.width - 8
                    height: 50
                    border.color: "#c0c8d0"
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
