import QtQuick 2.15
import Tarnis 1.0

Image {
    property string alias
    property int size: Ui.dimensions.uiElementDimensions["Icon/normal"]

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    // The fragment makes Image read a file again that was replaced under the same path.
    source: Ui.icons.getIconPathAsFileUrl(alias, View.context) + "#" + IconCatalog.revision
}
