import QtQuick 2.15
import Tarnis 1.0

Text {
    readonly property url icon: Ui.icons.getIconPathAsFileUrl("home")
}
