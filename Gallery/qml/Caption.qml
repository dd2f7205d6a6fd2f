import QtQuick 2.15

// Small print of the gallery itself; what the resources say is drawn with the library's answers.
Text {
    color: "#404040"
    elide: Text.ElideRight
    font.pixelSize: 12
    textFormat: Text.PlainText
}
