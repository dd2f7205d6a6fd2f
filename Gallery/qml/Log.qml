import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    title: "Log"
    subtitle: "newest first"
    isEmpty: list.count === 0
    emptyText: "Nothing has been logged."

    Blocks.Rows {
        id: list

        anchors.fill: parent
        rows: Log.records.filter(record => record.text.toLowerCase().includes(View.search.toLowerCase()))
        delegate: Blocks.Entry {
            width: page.width
            expression: modelData.text
            contentItem: Row {
                leftPadding: 8
                spacing: 8
                Blocks.Title {
                    width: 48
                    horizontalAlignment: Text.AlignRight
                    text: modelData.count + " ×"
                }
                Blocks.Caption {
                    width: page.width - 88
                    wrapMode: Text.Wrap
                    font.pixelSize: 13
                    text: modelData.text
                }
            }
        }
    }
}
