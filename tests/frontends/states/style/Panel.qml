import QtQuick 2.15
import "."

Rectangle {
    id: panel

    property string accent: Theme.accents.calm
    default property alias content: body.data

    color: Theme.raised
    border.width: Metrics.line
    border.color: Theme.pick(accent)

    Item {
        id: body

        anchors.fill: parent
        anchors.margins: Metrics.gap
    }
}
