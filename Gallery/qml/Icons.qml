import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks

Blocks.Cells {
    id: page

    leftMargin: 8
    topMargin: 8
    cellWidth: Math.floor((width - 16) / Math.floor((width - 16) / 116))
    cellHeight: 112
    rows: Catalog.revision >= 0 ? Catalog.icons(View.search) : []
    delegate: Blocks.Entry {
        readonly property string alias: modelData
        readonly property string effectiveContext: Catalog.revision >= 0
            ? Catalog.effectiveContext(alias, View.context) : ""
        readonly property string url: Ui.icons.getIconPathAsFileUrl(alias, View.context)

        width: page.cellWidth
        height: page.cellHeight
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
                    source: url === "" ? "" : url + "#" + Catalog.revision
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
                color: url === "" ? "#b3261e" : "#5a6570"
                text: url === "" ? "missing" : effectiveContext === View.context ? "" : effectiveContext
            }
        }
    }
}
