import QtQuick 2.15
import Tarnis 1.0

Text {
    property var other: ({ colours: { getColor: key => key } })

    color: Ui.colors.getColor("Day", "Text")
    text: other.colours.getColor("Text") + Ui.language + Ui.icons.objectName
}
