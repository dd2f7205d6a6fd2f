import QtQuick 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// An icon in all contexts. Without an alias, it is only as large as one with an alias.
Rectangle {
    id: card

    property string alias
    property int columns: 1
    property int placeWidth
    property int pixels
    property var backdrops: []
    readonly property int swatchesPerLine: Math.max(1, Math.min(backdrops.length, Math.floor(
        (placeWidth - 2 * Theme.small + Theme.tiny) / (3 * (pixels + Theme.small) + Theme.tiny))))
    readonly property int swatchLines: Math.ceil(backdrops.length / swatchesPerLine)
    readonly property int placeHeight: swatchLines * (2 * pixels + 2 * Theme.small + Theme.tiny)
                                       + 3 * captionHeight + 2 * Theme.small
    readonly property int captionHeight: Math.ceil(1.5 * Theme.captionSize)

    function clicked() {
        View.copy('Ui.icons.getIconPathAsFileUrl("' + alias + '", "' + View.context + '")')
    }

    height: title.height + Theme.small + Math.ceil(Math.max(1, IconCatalog.contexts.length) / columns) * placeHeight
    radius: Theme.radius
    color: "transparent"
    border.color: Theme.line

    Blocks.Title {
        id: title

        x: Theme.small
        y: Theme.small
        width: parent.width - 2 * x
        height: Math.ceil(1.5 * Theme.bodySize)
        elide: Text.ElideMiddle
        text: card.alias
    }
    // Asynchronous, so that jumps over many icons stay smooth. Its item is there before its colors are.
    Loader {
        x: Theme.small
        anchors.top: title.bottom
        active: card.alias !== ""
        asynchronous: true
        visible: status === Loader.Ready
        sourceComponent: Grid {
            columns: card.columns
            Repeater {
                model: IconCatalog.contexts
                IconContext {
                    width: card.placeWidth
                    height: card.placeHeight
                    alias: card.alias
                    context: modelData
                    pixels: card.pixels
                    backdrops: card.backdrops
                    captionHeight: card.captionHeight
                }
            }
        }
    }
}
