import QtQuick 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// An icon in one context: on each backdrop at 1x and 2x, with the facts of its file.
Blocks.Entry {
    id: entry

    property string alias
    property string context
    property int pixels
    property var backdrops
    property int captionHeight
    property bool isUndrawable: false
    readonly property string effectiveContext: IconCatalog.revision >= 0
        ? IconCatalog.effectiveContext(alias, context) : ""
    readonly property var file: IconCatalog.revision >= 0 ? IconCatalog.file(alias, context) : null
    readonly property string url: Ui.icons.getIconPathAsFileUrl(alias, context)

    expression: 'Ui.icons.getIconPathAsFileUrl("' + alias + '", "' + context + '")'
    padding: Theme.small
    leftPadding: 0
    contentItem: Item {
        Flow {
            id: swatches

            width: parent.width
            spacing: Theme.tiny
            Repeater {
                model: entry.backdrops
                Rectangle {
                    width: 3 * (entry.pixels + Theme.small)
                    height: 2 * entry.pixels + 2 * Theme.small
                    radius: Theme.radius
                    color: modelData
                    border.color: Theme.line
                    Repeater {
                        model: 2
                        Image {
                            readonly property int side: (index + 1) * entry.pixels

                            x: Theme.small + index * (entry.pixels + Theme.small)
                            anchors.verticalCenter: parent.verticalCenter
                            width: side
                            height: side
                            asynchronous: true
                            fillMode: Image.PreserveAspectFit
                            sourceSize: Qt.size(side, side)
                            onStatusChanged: entry.isUndrawable = status === Image.Error
                            source: entry.url === "" ? "" : entry.url + "#" + IconCatalog.revision
                        }
                    }
                }
            }
        }
        Column {
            anchors.bottom: parent.bottom
            width: parent.width
            Row {
                width: parent.width
                height: entry.captionHeight
                spacing: Theme.tiny
                Blocks.Caption {
                    width: Math.min(implicitWidth, swatches.width - (mark.visible ? mark.width + Theme.tiny : 0))
                    color: Theme.text
                    font.bold: entry.context === View.context
                    text: entry.context
                }
                Blocks.Mark {
                    id: mark

                    color: entry.url === "" || entry.isUndrawable ? Theme.error : Theme.textSecondary
                    text: entry.url === "" ? "missing" : entry.isUndrawable ? "cannot be drawn"
                        : entry.effectiveContext === entry.context ? "" : "default stands in"
                }
            }
            Blocks.Caption {
                width: parent.width
                height: entry.captionHeight
                text: entry.url === "" || !entry.file ? ""
                    : (entry.file.size || "no size")
                      + (entry.file.viewBox ? " · view box " + entry.file.viewBox : "")
            }
            Blocks.Caption {
                width: parent.width
                height: entry.captionHeight
                elide: Text.ElideMiddle
                text: entry.file ? entry.file.name : ""
            }
        }
    }
}
