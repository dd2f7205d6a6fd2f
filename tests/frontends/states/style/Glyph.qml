import QtQuick 2.15
import Tarnis 1.0
import "."

Image {
    property string name: "warning"

    sourceSize: Qt.size(Metrics.of("Icon", "normal"), Metrics.of("Icon", "normal"))
    source: Ui.icons.getIconPathAsFileUrl(name, Theme.context)
}
