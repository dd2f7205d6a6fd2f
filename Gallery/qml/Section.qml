import QtQuick 2.15

// A titled part of the page.
Column {
    property alias title: title.text

    width: parent.width - 2 * parent.padding
    spacing: 12

    Text {
        id: title

        width: parent.width
        color: "#202020"
        font.bold: true
        font.pixelSize: 22
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
    }
}
