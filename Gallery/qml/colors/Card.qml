import QtQuick 2.15
import QtQuick.Controls 2.15
import "../blocks" as Blocks
import "../theme"

// One name with a swatch for each theme, in one or several lines.
Item {
    id: card

    property var row
    property string against
    property int columns: 1
    property int swatchHeight
    property int current: -1 // the swatch that the keyboard acts on

    function clicked() {
        const swatch = swatches.itemAt(current)
        if (swatch && swatch.enabled)
            swatch.clicked()
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: row.title

    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.tiny
        radius: Theme.radius
        color: Theme.surface
        border.color: Theme.line
    }
    Blocks.Title {
        x: Theme.medium
        y: Theme.small
        width: parent.width - 2 * x
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Theme.captionSize - 1
        text: card.row.title
    }
    Grid {
        id: grid

        x: Theme.small
        y: Theme.small + Theme.rowHeight / 2 + Theme.tiny
        columns: Math.min(card.columns, swatches.count)

        Repeater {
            id: swatches

            model: card.row.cells
            delegate: Swatch {
                width: Math.floor((card.width - 2 * Theme.small) / grid.columns)
                height: card.swatchHeight
                cell: modelData
                against: card.against
                isCurrent: index === card.current
            }
        }
    }
}
