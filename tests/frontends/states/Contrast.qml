import QtQuick 2.15
import Tarnis 1.0
import "style"

Rectangle {
    id: toggle

    width: Metrics.of("Toggle", "width")
    height: Metrics.of("Toggle", "height")
    color: Theme.surface

    Rectangle {
        id: knob

        width: Metrics.of("Toggle", "knobSize")
        height: Metrics.of("Toggle", "knobSize")
    }
    Text {
        id: label

        anchors.centerIn: parent
        font.pointSize: Ui.fonts.getFontPointSize("Text", "Caption")
    }
    MouseArea {
        anchors.fill: parent
        onClicked: toggle.state = toggle.state === "on" ? "off" : "on"
    }

    state: "off"
    states: [
        State {
            name: "on"
            PropertyChanges { target: knob; x: Metrics.of("Toggle", "knobInset"); color: Theme.pick("Success") }
            PropertyChanges { target: label; text: Words.on; color: Theme.pick("TextOnAccent") }
            PropertyChanges { target: Theme; isHighContrast: true }
        },
        State {
            name: "off"
            PropertyChanges { target: knob; x: 0; color: Theme.pick("TextDisabled") }
            PropertyChanges { target: label; text: Words.off; color: Theme.pick("Text") }
        }
    ]
}
