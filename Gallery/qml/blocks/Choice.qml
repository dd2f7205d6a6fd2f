import QtQuick 2.15
import QtQuick.Controls 2.15

ComboBox {
    property string label
    property string value
    signal chosen(string value)

    implicitHeight: 32
    currentIndex: model.indexOf(value)
    font.pixelSize: 13
    Accessible.name: label
    ToolTip.text: label
    ToolTip.visible: hovered
    onActivated: index => chosen(model[index])
}
