import QtQuick 2.15
import Tarnis 1.0
import "."

Image {
    property string alias
    property int size: Ui.dimensions.uiElementDimensions["Icon/normal"]

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    source: Ui.icons.getIconPathAsFileUrl(alias, Theme.context)
}
