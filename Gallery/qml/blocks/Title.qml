import QtQuick 2.15

Text {
    color: "#101820"
    elide: Text.ElideRight
    font.bold: true
    font.pixelSize: 13
    textFormat: Text.PlainText
}
