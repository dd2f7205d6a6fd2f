import QtQuick 2.15
import Tarnis 1.0

Text {
    color: Ui.colors.getColor("Day", "Text")
    property var other: ({ getColor: function(group, key) { return key } })
    property string text2: other.getColor("Day", "Txt")
}
