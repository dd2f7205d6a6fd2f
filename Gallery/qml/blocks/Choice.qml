import QtQuick 2.15
import QtQuick.Controls 2.15
import "../theme"

ComboBox {
    id: choice

    property string label
    property string value
    property var labelOf: value => value // what the list shows for a value
    property int listWidth: width
    signal chosen(string value)

    implicitHeight: Theme.controlHeight
    currentIndex: model.indexOf(value)
    leftPadding: 0
    rightPadding: Theme.large + Theme.tiny
    font.pixelSize: Theme.bodySize
    Accessible.name: label
    ToolTip.text: label
    ToolTip.visible: hovered && !popup.visible
    popup.width: listWidth
    onActivated: index => chosen(model[index])

    delegate: ItemDelegate {
        id: entry

        width: ListView.view.width
        highlighted: choice.highlightedIndex === index
        text: choice.labelOf(modelData)
        background: Rectangle {
            color: entry.down ? Theme.pressed : entry.highlighted ? Theme.selected : "transparent"
        }
        contentItem: Text {
            color: Theme.text
            elide: Text.ElideRight
            font.bold: choice.currentIndex === index
            font.pixelSize: Theme.bodySize
            textFormat: Text.PlainText
            text: entry.text
        }
    }
    indicator: Text {
        x: choice.width - width - Theme.small
        y: (choice.height - height) / 2
        color: Theme.textSecondary
        font.pixelSize: Theme.bodySize
        text: "▾"
    }
}
