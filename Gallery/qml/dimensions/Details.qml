import QtQuick 2.15
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// The selected dimension: what is remarkable on each display, and its box on the shown one.
Rectangle {
    id: details

    property string name
    property var displays
    property string shown
    readonly property var remarks: DimensionCatalog.revision >= 0
        ? displays.filter(display => DimensionCatalog.remark(display, name) !== "") : []
    readonly property int mostRemarks: Math.max(1, height / 80) // leaves room for the box

    color: Theme.surface
    border.color: Theme.line

    Column {
        id: head

        x: Theme.medium
        y: Theme.small
        width: parent.width - 2 * x
        Blocks.Title {
            width: parent.width
            elide: Text.ElideMiddle
            text: details.name
        }
        Blocks.Caption {
            width: parent.width
            text: box.text + (details.shown === "" ? "" : " on " + details.shown)
        }
        Blocks.Caption {
            width: parent.width
            text: "Drawn " + box.scaleText
        }
        Repeater {
            model: details.remarks.slice(0, details.mostRemarks)
            delegate: Blocks.Caption {
                width: parent.width
                wrapMode: Text.Wrap
                color: Theme.error
                text: modelData + ": " + DimensionCatalog.remark(modelData, details.name)
            }
        }
        Blocks.Caption {
            visible: details.remarks.length > details.mostRemarks
            text: "and " + (details.remarks.length - details.mostRemarks) + " more"
        }
    }
    Box {
        id: box

        objectName: "box"
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        anchors.margins: Theme.medium
        x: Theme.medium
        width: parent.width - 2 * x
        size: DimensionCatalog.revision >= 0 ? DimensionCatalog.box(details.shown, details.name) : Qt.size(0, 0)
    }
}
