import QtQuick 2.15
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// The family of a group, and for each language of the directory the characters of its texts that the family lacks.
Rectangle {
    id: block

    property string group
    property string family
    property string describedGroup // the first one with this family, which tells what the family lacks

    readonly property string used: FontCatalog.revision >= 0 ? FontCatalog.usedFamily(family) : ""
    readonly property var coverage: group === describedGroup && FontCatalog.coverage[family] || []
    readonly property var incomplete: coverage.filter(language => language.missing.length > 0)
    readonly property var complete: coverage.filter(language => language.missing.length === 0)

    height: content.height + 2 * Theme.small
    color: Theme.surface

    Column {
        id: content

        x: Theme.medium
        y: Theme.small
        width: parent.width - 2 * x
        spacing: Theme.tiny

        Flow {
            width: parent.width
            spacing: Theme.small

            Blocks.Title {
                font.pixelSize: Theme.titleSize
                text: block.group
            }
            Blocks.Caption {
                topPadding: Theme.tiny
                text: block.family + (block.group === block.describedGroup ? "" : ", as in the group " + block.describedGroup)
            }
            Blocks.Mark {
                text: block.family === block.used ? "" : block.family === "" ? "no family; " + block.used + " is used instead"
                    : "not installed; " + block.used + " is used instead"
            }
        }
        Row {
            visible: block.complete.length > 0
            width: parent.width
            spacing: Theme.small

            Text {
                id: completeLabel

                color: Theme.good
                font.bold: true
                font.pixelSize: Theme.captionSize
                text: "✓ complete"
            }
            Blocks.Caption {
                width: parent.width - completeLabel.width - parent.spacing
                wrapMode: Text.Wrap
                text: block.complete.map(language => language.language).join(", ")
            }
        }
        Repeater {
            model: block.incomplete
            Missing {
                width: content.width
                coverage: modelData
            }
        }
    }
}
