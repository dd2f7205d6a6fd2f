import QtQuick 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// A color of one theme with its contrast, or a sample of a text on its background.
Blocks.Entry {
    id: swatch

    property var cell
    property string against // the background for colors that are not a sample
    property bool isCurrent: false

    readonly property bool isSample: cell.background !== ""
    readonly property bool isMissing: cell.missing !== ""
    readonly property string value: isMissing ? "" : Ui.colors.getColor(cell.group, cell.key)
    readonly property bool isColor: ColorCatalog.isColor(value)
    readonly property string below: isSample ? cell.background : against
    readonly property string backgroundColor: isMissing ? "" : ColorCatalog.backgroundColor(cell.group, below)
    readonly property double contrast: ColorCatalog.contrast(value, cell.group, below)
    readonly property int failure: ColorCatalog.failure(contrast)
    readonly property bool isItself: below === cell.key || below === cell.group + "/" + cell.key
    readonly property string ratio: contrast > 0 && !isItself ? ColorCatalog.ratioText(contrast) : ""
    readonly property string fault: isMissing ? cell.missing + " is missing"
        : !isColor || isSample && !ColorCatalog.isColor(backgroundColor) ? "not a color" : ""

    enabled: !isMissing
    expression: 'Ui.colors.getColor("' + cell.group + '", "' + cell.key + '")'
    Accessible.name: [cell.group, cell.key, fault !== "" ? fault : value].join(" ")
        + (isSample && contrast > 0 ? ", " + ratio + " on " + below + ", " + ColorCatalog.verdict(contrast) : "")
    padding: Theme.tiny

    background: Rectangle {
        radius: Theme.radius
        color: swatch.down || swatch.hovered && swatch.enabled ? Theme.pressed : "transparent"
        border.width: swatch.isCurrent ? 2 : 0
        border.color: Theme.accent
    }
    contentItem: Column {
        Item {
            width: parent.width
            height: 48

            Checkerboard {
                anchors.fill: parent
                visible: ColorCatalog.isTransparent(swatch.value) && !swatch.isSample
            }
            Rectangle {
                anchors.fill: parent
                visible: swatch.isSample
                color: swatch.isMissing ? "transparent" : ColorCatalog.colorBehind(swatch.cell.group, swatch.below)
            }
            Rectangle {
                readonly property string shown: swatch.isSample ? swatch.backgroundColor : swatch.value

                anchors.fill: parent
                border.color: Theme.line
                color: swatch.fault === "" ? shown : "transparent"
            }
            Text {
                anchors.centerIn: parent
                visible: swatch.isSample && swatch.fault === ""
                color: visible ? swatch.value : "transparent"
                font.pixelSize: Theme.bodySize
                textFormat: Text.StyledText
                text: "<font size='6'>Aa</font> text"
            }
            Blocks.Mark {
                anchors.centerIn: parent
                text: swatch.fault
            }
        }
        Blocks.Caption {
            width: parent.width
            topPadding: 2
            color: Theme.text
            text: swatch.cell.group
        }
        Blocks.Caption {
            width: parent.width
            visible: !swatch.isSample
            text: swatch.value
        }
        Blocks.Caption {
            width: parent.width
            text: swatch.ratio
        }
        Blocks.Mark {
            visible: swatch.isSample && swatch.ratio !== ""
            color: ["transparent", Theme.warning, Theme.error][swatch.failure]
            textColor: swatch.failure === 0 ? Theme.good : Theme.textOnError
            margin: swatch.failure === 0 ? 0 : Theme.tiny
            text: ColorCatalog.verdict(swatch.contrast)
        }
    }
}
