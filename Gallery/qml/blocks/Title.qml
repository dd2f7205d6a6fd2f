import QtQuick 2.15
import "../theme"

Text {
    color: Theme.text
    elide: Text.ElideRight
    font.bold: true
    font.pixelSize: Theme.bodySize
    textFormat: Text.PlainText
}
