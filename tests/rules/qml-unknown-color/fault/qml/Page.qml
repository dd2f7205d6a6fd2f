import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 38 qml-unknown-color
    color: Ui.colors.getColor("Day", "Txt")
}
