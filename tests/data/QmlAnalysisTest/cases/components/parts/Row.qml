import QtQuick 2.15
import Tarnis 1.0

Image {
    required property string icon
    source: Ui.icons.getIconPath(icon)
}
