import QtQuick 2.15
import Tarnis 1.0

Image {
    property string name
    source: Ui.icons.getIconPath(name)
}
