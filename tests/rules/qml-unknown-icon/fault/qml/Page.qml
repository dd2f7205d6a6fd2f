import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 54 qml-unknown-icon
    property url icon: Ui.icons.getIconPathAsFileUrl("hone", "defaultContext")
    // expect 54 qml-unknown-icon
    property url other: Ui.icons.getIconPath("home", "nigth")
}
