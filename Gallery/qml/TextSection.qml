import QtQuick 2.15
import Tarnis 1.0

Section {
    id: section

    property var texts: Ui.texts.translatedTexts

    title: "Texts"

    Grid {
        width: parent.width
        columns: 2
        columnSpacing: 16
        rowSpacing: 4
        Repeater {
            model: Object.keys(section.texts)
            Row {
                width: (section.width - 16) / 2
                spacing: 8
                Caption {
                    width: 220
                    text: modelData
                }
                Caption {
                    width: parent.width - 228
                    font.pixelSize: 14
                    wrapMode: Text.Wrap
                    text: section.texts[modelData]
                }
            }
        }
    }
}
