import QtQuick 2.15
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "colors" as Colors
import "theme"

Blocks.Page {
    id: page

    readonly property var backgrounds: ColorCatalog.revision >= 0 ? ColorCatalog.backgrounds() : []
    property string chosenBackground: "Background"
    readonly property string background: backgrounds.includes(chosenBackground) ? chosenBackground : "white"

    title: "Colors"
    subtitle: ColorCatalog.revision >= 0 ? ColorCatalog.entries("").length + " colors" : ""
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
            model: page.backgrounds
            value: page.background
            onChosen: value => page.chosenBackground = value
        },
        Blocks.Caption {
            height: page.width < 900 ? implicitHeight : Theme.controlHeight // below the choice or beside it
            verticalAlignment: Text.AlignVCenter
            text: "WCAG 2.1: AA from 4.5:1, large text from 3:1. AAA from 7:1, large text from 4.5:1."
        }
    ]

    Blocks.Cells {
        id: cells

        readonly property int mostThemes: rows.reduce((most, row) => Math.max(most, row.cells.length), 1)
        readonly property int room: width - 2 * Theme.small
        readonly property int swatchWidth: 140
        // The swatches of a card wrap if even one card is too wide.
        readonly property int swatchColumns: Math.max(1, Math.min(mostThemes, Math.floor(room / swatchWidth)))
        readonly property int cardColumns: Math.max(1, Math.floor(room / (swatchColumns * swatchWidth)))
        readonly property int swatchHeight: 48 + 3 * (Theme.captionSize + 5) + 3 * Theme.tiny
        property int current: 0

        function move(step) {
            const swatch = current + step
            if (currentItem && swatch >= 0 && swatch < rows[currentIndex].cells.length)
                current = swatch
            else if (step > 0 && currentIndex < count - 1) {
                moveCurrentIndexRight()
                current = 0
            } else if (step < 0 && currentIndex > 0) {
                moveCurrentIndexLeft()
                current = rows[currentIndex].cells.length - 1
            }
        }

        anchors.fill: parent
        leftMargin: Theme.small
        cellWidth: Math.floor(room / cardColumns)
        cellHeight: Math.ceil(mostThemes / swatchColumns) * swatchHeight + Theme.rowHeight
        highlight: null
        rows: ColorCatalog.revision >= 0 ? ColorCatalog.rows(View.search) : []
        Keys.onLeftPressed: move(-1)
        Keys.onRightPressed: move(1)
        delegate: Colors.Card {
            width: cells.cellWidth
            height: cells.cellHeight
            row: modelData
            against: page.background
            columns: cells.swatchColumns
            swatchHeight: cells.swatchHeight
            current: cells.activeFocus && GridView.isCurrentItem ? Math.min(cells.current, row.cells.length - 1) : -1
        }
    }
}
