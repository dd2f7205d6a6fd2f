import QtQuick 2.15
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "icons" as Icons
import "theme"

Blocks.Page {
    id: page

    property string background: "light and dark"
    property int pixels: 32
    readonly property var backdrops: background === "light" ? [Theme.lightBackdrop]
        : background === "dark" ? [Theme.darkBackdrop] : [Theme.lightBackdrop, Theme.darkBackdrop]

    // A card has one place for each context; on a narrow window the places and the backdrops in them wrap.
    readonly property int contextCount: Math.max(1, IconCatalog.contexts.length)
    readonly property int innerWidth: width - 2 * Theme.small
    readonly property int swatchWidth: 3 * (pixels + Theme.small)
    readonly property int placeWidth: Math.min(innerWidth - 2 * Theme.small, Math.max(
        180, backdrops.length * (swatchWidth + Theme.tiny) + 2 * Theme.small))
    readonly property int columns: Math.max(1, Math.min(
        contextCount, Math.floor((innerWidth - 2 * Theme.small) / placeWidth)))
    readonly property int cardsPerRow: Math.max(
        1, Math.floor(innerWidth / (columns * placeWidth + 2 * Theme.small)))

    title: "Icons"
    subtitle: list.count + (list.count === 1 ? " icon" : " icons")
    isEmpty: list.count === 0
    emptyText: "The mapping table contains no icons."
    controls: [
        Blocks.Caption {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: "Background"
        },
        Blocks.Choice {
            width: 150
            label: "Background of the icons"
            model: ["light and dark", "light", "dark"]
            value: page.background
            onChosen: value => page.background = value
        },
        Blocks.Caption {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: "Size at 1x"
        },
        Blocks.Choice {
            width: 90
            label: "Size at 1x, in pixels; at 2x it is doubled"
            model: ["16 px", "24 px", "32 px", "48 px", "64 px", "96 px"]
            value: page.pixels + " px"
            onChosen: value => page.pixels = parseInt(value)
        }
    ]

    Blocks.Cells {
        id: list

        anchors.fill: parent
        anchors.leftMargin: Theme.small
        cellWidth: Math.floor(page.innerWidth / page.cardsPerRow)
        cellHeight: sample.height + Theme.small
        rows: IconCatalog.revision >= 0 ? IconCatalog.aliases(View.search) : []
        delegate: Item {
            function clicked() {
                card.clicked()
            }

            width: list.cellWidth
            height: list.cellHeight
            Icons.IconCard {
                id: card

                width: parent.width - Theme.small
                alias: modelData
                columns: page.columns
                placeWidth: page.placeWidth
                pixels: page.pixels
                backdrops: page.backdrops
            }
        }
    }
    // Has the height of every card.
    Icons.IconCard {
        id: sample

        visible: false
        columns: page.columns
        placeWidth: page.placeWidth
        pixels: page.pixels
        backdrops: page.backdrops
    }
}
