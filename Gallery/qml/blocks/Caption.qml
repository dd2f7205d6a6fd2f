import QtQuick 2.15
import "../theme"

Text {
    color: Theme.textSecondary
    elide: Text.ElideRight
    font.pixelSize: Theme.captionSize
    textFormat: Text.PlainText
}
