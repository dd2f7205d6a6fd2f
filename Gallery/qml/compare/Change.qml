import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import "../blocks" as Blocks
import "../theme"

// A row of the comparison: the heading of a kind, or one change.
Blocks.Entry {
    id: entry

    property var change
    property real columnWidth
    property int longest
    readonly property bool isHeading: change.heading !== undefined

    function expressionOf(change) {
        const slash = (change.name || "").lastIndexOf("/")
        const group = slash < 0 ? "" : JSON.stringify(change.name.slice(0, slash))
        const key = slash < 0 ? "" : JSON.stringify(change.name.slice(slash + 1))
        switch (change.kind) {
        case "Colors":
            return "Ui.colors.getColor(" + group + ", " + key + ")"
        case "Fonts":
            return key === '"Family"' ? "Ui.fonts.getFontFamily(" + group + ")"
                                      : "Ui.fonts.getFontPointSize(" + group + ", " + key + ")"
        case "Dimensions":
            return "Ui.dimensions.uiElementDimensions[" + JSON.stringify(change.name) + "]"
        case "Icons":
            return "Ui.icons.getIconPathAsFileUrl(" + JSON.stringify(change.name) + ", "
                + JSON.stringify(change.variant) + ")"
        case "Texts":
            return "Ui.texts.translatedTexts[" + JSON.stringify(change.name) + "]"
        }
        return change.name
    }

    height: isHeading ? Theme.rowHeight + Theme.medium : Math.max(Theme.rowHeight, row.implicitHeight) + 2 * Theme.small
    enabled: !isHeading
    expression: isHeading ? "" : expressionOf(change)
    Accessible.name: isHeading ? change.heading : change.type + ": " + change.name + " " + change.variant

    contentItem: Item {
        Blocks.Title {
            x: Theme.medium
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.tiny
            visible: entry.isHeading
            font.pixelSize: Theme.titleSize
            text: entry.isHeading ? entry.change.heading : ""
        }
        Row {
            id: row

            x: Theme.medium
            y: Theme.small
            visible: !entry.isHeading
            Column {
                width: entry.columnWidth
                rightPadding: Theme.small
                spacing: 2
                Blocks.Title {
                    width: parent.width - Theme.small
                    wrapMode: Text.WrapAnywhere
                    text: entry.change.name || ""
                }
                Blocks.Caption {
                    width: parent.width - Theme.small
                    wrapMode: Text.Wrap
                    text: [entry.change.type, entry.change.variant, entry.change.difference].filter(Boolean).join(" · ")
                }
            }
            Repeater {
                model: entry.isHeading ? [] : ["old", "new"]
                Side {
                    width: entry.columnWidth * 1.5
                    change: entry.change
                    content: entry.change[modelData]
                    isNew: modelData === "new"
                    longest: entry.longest
                }
            }
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        x: Theme.medium
        width: parent.width - 2 * x
        height: 1
        color: Theme.line
    }
}
