import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 46 qml-unknown-dimension
    width: Ui.dimensions.uiElementDimensions["Tile/widht"]
}
