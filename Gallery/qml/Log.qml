import QtQuick 2.15
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    property string source: "all sources"
    property string severity: "all severities"

    title: "Log"
    subtitle: list.count + (list.count === 1 ? " message" : " messages") + ", newest first"
    isEmpty: list.count === 0
    emptyText: Log.records.length === 0 ? "Nothing has been logged." : "No messages of this source and severity."
    controls: [
        Blocks.Caption {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: "Show"
        },
        Blocks.Choice {
            width: 130
            label: "Source of the messages"
            model: ["all sources", "library", "platform", "front end"]
            value: page.source
            onChosen: value => page.source = value
        },
        Blocks.Choice {
            width: 140
            label: "Severity of the messages"
            model: ["all severities", "error", "warning", "information"]
            value: page.severity
            onChosen: value => page.severity = value
        }
    ]

    Blocks.Rows {
        id: list

        readonly property int countWidth: 64
        readonly property int sourceWidth: 72

        anchors.fill: parent
        rows: Log.records.filter(record =>
            (page.source === "all sources" || record.source === page.source)
            && (page.severity === "all severities" || record.severity === page.severity)
            && record.text.toLowerCase().includes(View.search.toLowerCase()))
        headerPositioning: ListView.OverlayHeader
        header: Rectangle {
            z: 2
            width: list.width
            height: list.count > 0 ? Theme.rowHeight : 0
            visible: list.count > 0
            color: Theme.window
            Row {
                x: Theme.medium
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.small
                Blocks.Title { width: list.countWidth; horizontalAlignment: Text.AlignRight; text: "Count" }
                Blocks.Title { width: list.sourceWidth; text: "Source" }
                Blocks.Title { text: "Message" }
            }
        }
        delegate: Blocks.Entry {
            width: list.width
            expression: modelData.text
            leftPadding: Theme.medium
            rightPadding: Theme.medium
            topPadding: Theme.tiny
            bottomPadding: Theme.tiny
            contentItem: Row {
                spacing: Theme.small
                Blocks.Title {
                    width: list.countWidth
                    horizontalAlignment: Text.AlignRight
                    text: modelData.count + " ×"
                }
                Blocks.Caption {
                    width: list.sourceWidth
                    topPadding: 1
                    text: modelData.source
                }
                Blocks.Caption {
                    width: list.width - list.countWidth - list.sourceWidth - 2 * Theme.medium - 2 * Theme.small
                    color: modelData.severity === "error" ? Theme.error : Theme.text
                    wrapMode: Text.Wrap
                    font.pixelSize: Theme.bodySize
                    text: modelData.text
                }
            }
        }
    }
}
