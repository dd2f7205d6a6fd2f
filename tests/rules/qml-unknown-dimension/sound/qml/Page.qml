import QtQuick 2.15
import Tarnis 1.0

Text {
    width: Ui.dimensions.uiElementDimensions["Tile/width"]
    property var uiElementDimensions: ({})
    height: uiElementDimensions["Tile/widht"]
}
