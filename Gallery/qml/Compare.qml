import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "compare" as Compare
import "theme"

// The old and the new state of each resource that has changed, side by side.
Blocks.Page {
    id: page

    readonly property string all: "All kinds"
    property string chosenKind: all
    readonly property var changes: Comparison.revision >= 0 ? changesOf(kinds, View.search) : []
    readonly property var kinds: Comparison.kinds.includes(chosenKind) ? [chosenKind] : Comparison.kinds
    // The longest dimension, so that all bars have the same scale.
    readonly property int longest: changes.filter(change => change.kind === "Dimensions").reduce(
        (longest, change) => Math.max(longest, Number(change.old.text) || 0, Number(change.new.text) || 0), 1)

    // A row for each kind, followed by one for each of its changes.
    function changesOf(kinds, search) {
        let rows = []
        for (const kind of kinds) {
            const found = Comparison.changes(kind, search)
            if (found.length > 0)
                rows = rows.concat([{ heading: kind + " (" + found.length + ")", old: {}, new: {} }], found)
        }
        return rows
    }

    title: "Compare"
    subtitle: "Old and new side by side"
    isEmpty: list.count === 0
    emptyText: Comparison.revision === 0 ? "Comparing the directories." : "Nothing has changed."
    controls: [
        Blocks.Choice {
            width: 136
            label: "Kind of resources"
            model: [page.all].concat(Comparison.kinds)
            value: Comparison.kinds.includes(page.chosenKind) ? page.chosenKind : page.all
            onChosen: value => page.chosenKind = value
        },
        Blocks.Title {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: Comparison.verdict
        },
        Blocks.Caption {
            height: Theme.controlHeight
            width: Math.min(implicitWidth, page.width - 2 * Theme.medium)
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideMiddle
            text: "Old: " + Comparison.oldDirectory
        },
        Text {
            width: page.width - 2 * Theme.medium
            visible: text !== ""
            color: Theme.error
            font.pixelSize: Theme.bodySize
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            text: Comparison.problem === "" ? "" : "The old state cannot be read completely: " + Comparison.problem
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    ]

    Row {
        id: header

        x: Theme.medium
        height: 24
        visible: !page.isEmpty
        Repeater {
            model: ["Name", "Old", "New"]
            Blocks.Title {
                width: list.columnWidth * (index === 0 ? 1 : 1.5)
                text: modelData
            }
        }
    }
    Blocks.Rows {
        id: list

        readonly property real columnWidth: (width - 2 * Theme.medium) / 4

        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        rows: page.changes
        delegate: Compare.Change {
            width: list.width
            columnWidth: list.columnWidth
            change: modelData
            longest: page.longest
        }
    }
}
