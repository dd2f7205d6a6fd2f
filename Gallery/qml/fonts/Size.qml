import QtQuick 2.15
import Tarnis 1.0
import "../blocks" as Blocks
import "../theme"

// The sample in one size.
Blocks.Entry {
    id: entry

    property string group
    property string key
    property string pixels
    property string family
    property string sample

    readonly property double points: Ui.fonts.getFontPointSize(group, key)

    horizontalPadding: Theme.medium
    verticalPadding: Theme.tiny
    expression: 'Ui.fonts.getFontPointSize("' + group + '", "' + key + '")'
    contentItem: Column {
        Row {
            spacing: Theme.small
            Blocks.Title {
                text: entry.group + "/" + entry.key
            }
            Blocks.Caption {
                text: entry.pixels + " px, " + entry.points.toFixed(2) + " pt"
            }
            Blocks.Mark {
                text: entry.points > 0 ? "" : "no size"
            }
        }
        Text {
            width: parent.width
            elide: Text.ElideRight
            color: Theme.text
            font.family: entry.family
            font.pointSize: entry.points > 0 ? entry.points : 1
            text: entry.sample
            textFormat: Text.PlainText
        }
    }
}
