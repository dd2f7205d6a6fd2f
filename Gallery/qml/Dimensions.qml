import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "dimensions" as Dimensions
import "theme"

Blocks.Page {
    id: page

    readonly property var displays: DimensionCatalog.displays
    // The display that the lookups of QML are answered for.
    readonly property string shown: list.dimensions ? DimensionCatalog.shownDisplay(Ui.dimensions) : ""
    readonly property bool isWide: width >= 560
    readonly property int detailsWidth: Math.max(200, width * 0.3, width - columns.comfortableWidth)
    readonly property int detailsHeight: 160

    title: "Dimensions"
    subtitle: list.count + " dimensions in pixels for " + displays.length + (displays.length === 1 ? " display" : " displays")
    isEmpty: list.count === 0
    emptyText: "The dimension files contain no dimensions."
    controls: Blocks.Caption {
        width: parent.width
        wrapMode: Text.Wrap
        text: "Marked: missing or not an integer; more than twice or less than half of what the growth of the other "
            + "dimensions suggests; smaller than on a smaller display. Select a row for the reason."
    }

    Item {
        id: table

        width: page.isWide ? parent.width - page.detailsWidth : parent.width
        height: page.isWide ? parent.height : parent.height - page.detailsHeight
        visible: !page.isEmpty

        Dimensions.TableHeader {
            id: columns

            width: parent.width
            displays: page.displays
            shown: page.shown
            scrolled: list.contentX
        }
        Blocks.Rows {
            id: list

            readonly property var dimensions: Ui.dimensions.uiElementDimensions

            function scroll(step) {
                contentX = Math.max(0, Math.min(contentX + step, contentWidth - width))
            }

            objectName: "dimensions"
            anchors.top: columns.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            contentWidth: columns.contentWidth
            bottomMargin: contentWidth > width ? Theme.medium : 0 // for the scroll bar
            flickableDirection: Flickable.AutoFlickIfNeeded
            ScrollBar.horizontal: Blocks.ScrollHandle {
                policy: list.contentWidth > list.width ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
            }
            Keys.onLeftPressed: scroll(-columns.columnWidth)
            Keys.onRightPressed: scroll(columns.columnWidth)
            rows: DimensionCatalog.revision >= 0 ? DimensionCatalog.names(View.search) : []
            delegate: Dimensions.TableRow {
                name: modelData
                table: columns
                isCurrent: ListView.isCurrentItem
                onClicked: list.currentIndex = index
            }
        }
    }
    Dimensions.Details {
        x: page.isWide ? table.width : 0
        y: page.isWide ? 0 : table.height
        width: page.isWide ? page.detailsWidth : parent.width
        height: page.isWide ? parent.height : page.detailsHeight
        visible: !page.isEmpty
        name: list.currentIndex >= 0 && list.currentIndex < list.count ? list.rows[list.currentIndex] : ""
        displays: page.displays
        shown: page.shown
    }
}
