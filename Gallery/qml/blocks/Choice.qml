import QtQuick 2.15
import QtQuick.Controls 2.15
import "../theme"

ComboBox {
    id: choice

    property string label
    property string value
    signal chosen(string value)

    implicitHeight: Theme.controlHeight
    currentIndex: model.indexOf(value)
    leftPadding: 0
    rightPadding: Theme.large + Theme.tiny
    font.pixelSize: Theme.bodySize
    Accessible.name: label
    ToolTip.text: label
    ToolTip.visible: hovered
    onActivated: index => chosen(model[index])

    indicator: Text {
        x: choice.width - width - Theme.small
        y: (choice.height - height) / 2
        color: Theme.textSecondary
        font.pixelSize: Theme.bodySize
        text: "▾"
    }
}
