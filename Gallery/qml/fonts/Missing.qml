import QtQuick 2.15
import Tarnis.Gallery 1.0
import "../blocks" as Blocks
import "../theme"

// The characters of one language that the family lacks, and the families that draw them.
Column {
    property var coverage

    readonly property int shown: Math.min(FontCatalog.showsManyMissing ? 400 : 8, coverage.missing.length)
    readonly property int hidden: coverage.missing.length - shown
    readonly property string substitutes: coverage.substitutes.length > 0
        ? "drawn with " + coverage.substitutes.join(", ") : ""
    readonly property string undrawn: coverage.undrawn > 0 ? coverage.undrawn + " in no installed family" : ""

    Flow {
        width: parent.width
        spacing: Theme.small

        Blocks.Mark {
            isWarning: coverage.undrawn === 0
            text: coverage.language + ": lacks " + coverage.missing.length + " of " + coverage.characters + " characters"
        }
        Blocks.Caption {
            topPadding: 2
            text: [substitutes, undrawn].filter(part => part !== "").join("; ")
        }
    }
    Text {
        width: parent.width
        topPadding: Theme.tiny
        wrapMode: Text.Wrap
        color: Theme.text
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
        // Starts with a left-to-right mark, so that the codes stay beside their characters in every script.
        text: "\u200E" + coverage.missing.slice(0, shown).join("   ") + (hidden > 0 ? "   and " + hidden + " more" : "")
    }
}
