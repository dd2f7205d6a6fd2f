import QtQuick 2.15
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// The old or the new value of a change, as a picture and in words.
Row {
    id: side

    property var change
    property var content
    property bool isNew
    property int longest
    readonly property bool isThere: content.text !== undefined
    readonly property string value: isThere ? content.text : ""
    readonly property bool isFamily: change.name.endsWith("/Family")
    readonly property real pictureWidth: width - 2 * Theme.small

    spacing: Theme.small

    Loader {
        sourceComponent: !side.isThere ? null
                       : side.change.kind === "Colors" ? colorPicture
                       : side.change.kind === "Fonts" ? fontPicture
                       : side.change.kind === "Dimensions" ? dimensionPicture
                       : side.change.kind === "Icons" && side.content.url.toString() !== "" ? iconPicture : null
    }
    Text {
        width: Math.max(0, side.width - x - Theme.small)
        color: side.isThere ? Theme.text : Theme.textSecondary
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        visible: side.change.kind !== "Fonts" && side.change.kind !== "Dimensions" || !side.isThere
        text: !side.isThere ? "–"
            : side.change.kind === "Icons" && side.content.url.toString() === "" ? "missing: " + side.value : side.value
    }

    Component {
        id: colorPicture

        Image {
            width: 64
            height: 32
            fillMode: Image.Tile
            source: "checkerboard.svg"
            Rectangle {
                anchors.fill: parent
                border.color: Theme.line
                color: ColorCatalog.isColor(side.value) ? side.value : "transparent"
            }
        }
    }
    Component {
        id: fontPicture

        Column {
            width: side.pictureWidth
            Text {
                width: parent.width
                elide: Text.ElideRight
                color: Theme.text
                font.family: Comparison.family(side.change.name, side.isNew)
                font.pixelSize: side.isFamily ? 24 : Math.max(1, Math.min(200, Number(side.value) || 1))
                text: "Abgjß 0123"
            }
            Blocks.Caption {
                width: parent.width
                text: side.isFamily ? side.value
                                    : side.value + " px, " + Comparison.family(side.change.name, side.isNew)
            }
        }
    }
    Component {
        id: dimensionPicture

        Column {
            topPadding: Theme.tiny
            spacing: 2
            Rectangle {
                width: side.pictureWidth * Math.max(0, Number(side.value) || 0) / Math.max(side.longest, side.pictureWidth)
                height: 12
                color: Theme.accent
            }
            Blocks.Caption {
                text: side.value + " px"
            }
        }
    }
    Component {
        id: iconPicture

        Row {
            spacing: 2
            Repeater {
                model: ["#f5f7f9", "#1e242b"]
                Rectangle {
                    width: 56
                    height: 56
                    color: modelData
                    border.color: Theme.line
                    Image {
                        anchors.centerIn: parent
                        sourceSize: Qt.size(48, 48)
                        source: side.content.url
                    }
                }
            }
        }
    }
}
