import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    title: "Icons"
    subtitle: list.count + " icons"
    isEmpty: list.count === 0
    emptyText: "The mapping table contains no icons."

    Blocks.Cells {
        id: list

        anchors.fill: parent
        leftMargin: 8
        topMargin: 8
        cellWidth: Math.floor((width - 16) / Math.floor((width - 16) / 116))
        cellHeight: 112
        rows: IconCatalog.revision >= 0 ? IconCatalog.aliases(View.search) : []
        delegate: Blocks.Entry {
            readonly property string alias: modelData
            readonly property string effectiveContext: IconCatalog.revision >= 0
                ? IconCatalog.effectiveContext(alias, View.context) : ""
            readonly property string url: Ui.icons.getIconPathAsFileUrl(alias, View.context)

            width: list.cellWidth
            height: list.cellHeight
            expression: 'Ui.icons.getIconPathAsFileUrl("' + alias + '", "' + View.context + '")'
            contentItem: Column {
                spacing: 2
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 56
                    height: 56
                    radius: 4
                    color: View.context === "nightMode" ? "#202830" : "#f0f2f4"
                    Image {
                        anchors.centerIn: parent
                        sourceSize: Qt.size(48, 48)
                        source: url === "" ? "" : url + "#" + IconCatalog.revision
                    }
                }
                Blocks.Title {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.min(implicitWidth, parent.width)
                    elide: Text.ElideMiddle
                    font.bold: false
                    text: alias
                }
                Blocks.Mark {
                    anchors.horizontalCenter: parent.horizontalCenter
                    color: url === "" ? Theme.error : Theme.textSecondary
                    text: url === "" ? "missing" : effectiveContext === View.context ? "" : effectiveContext
                }
            }
        }
    }
}
