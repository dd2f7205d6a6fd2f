import QtQuick 2.15

Rectangle {
    property var colors
    property var map
    color: colors.getColor("Day", "Accennt") // unknown Day/Accennt
    width: map["Tile/width"] + map["Tile/wdith"] // unknown Tile/wdith
}
