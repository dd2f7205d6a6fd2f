import QtQuick 2.15

Text {
    color: "#404850"
    elide: Text.ElideRight
    font.pixelSize: 12
    textFormat: Text.PlainText
}
