import QtQuick 2.15
import Tarnis 1.0
import "style"

Column {
    id: menu

    property string selected

    spacing: Metrics.gap

    Repeater {
        model: 3
        delegate: Panel {
            id: entry

            readonly property string word: ["Night", "Eco", "Comfort"][index]

            width: Metrics.of("Dialog", "width")
            height: Metrics.touch
            state: menu.selected === word ? "selected" : area.pressed ? "pressed" : ""
            states: [
                State {
                    name: "selected"
                    PropertyChanges { target: entry; accent: "Focus" }
                    PropertyChanges { target: mark; name: "confirm" }
                },
                State {
                    name: "pressed"
                    PropertyChanges { target: entry; accent: "AccentPressed" }
                }
            ]

            Glyph {
                id: mark

                name: "next"
            }
            Text {
                anchors.centerIn: parent
                color: Theme.text
                font.pointSize: Ui.fonts.getFontPointSize("Text", "Large")
                text: Words.mode(entry.word)
            }
            MouseArea {
                id: area

                anchors.fill: parent
                onClicked: menu.selected = entry.word
            }
        }
    }
    Row {
        spacing: Metrics.of("Dialog", "buttonGap")

        Text { text: Words.ok; color: Theme.faint }
        Text { text: Words.save; color: Theme.faint }
        Glyph { name: "back" }
    }
}
