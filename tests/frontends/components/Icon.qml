import QtQuick 2.15
import Tarnis 1.0

Image {
    id: icon

    property string alias: "warning"
    property string context
    property string dimension: "Icon/normal"
    readonly property real length: Ui.dimensions.uiElementDimensions[dimension]

    width: length
    height: length
    sourceSize.width: length
    sourceSize.height: length
    source: Ui.icons.getIconPathAsFileUrl(icon.alias, icon.context)
}
