import QtQuick 2.15
import "../blocks" as Blocks
import "../theme"

// A text as the device shows it in one language.
Column {
    leftPadding: Theme.small
    spacing: 2

    Text {
        width: parent.width - 2 * Theme.small
        color: modelData.isMissing ? Theme.textSecondary : Theme.text
        font.italic: modelData.isMissing
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        text: modelData.text
    }
    Blocks.Mark {
        text: modelData.isMissing ? "missing" : modelData.isIdentical ? "same as English" : ""
        isWarning: modelData.isIdentical
    }
}
