import QtQuick 2.15
import Tarnis 1.0
import "style"

Panel {
    id: dial

    property string size: "Setpoint"
    property string caption: "text://Home/RoomTemperature"

    width: Metrics.gauge.diameter
    height: Metrics.gauge.diameter
    radius: width / 2
    border.width: Metrics.gauge.stroke

    Text {
        anchors.centerIn: parent
        color: Theme.text
        font {
            family: Ui.fonts.getFontFamily("Numeric")
            pointSize: dial.size === "Setpoint" ? Ui.fonts.getFontPointSize("Numeric", dial.size)
                                                : Ui.fonts.getFontPointSize("Heading", dial.size)
        }
        text: "21.5°"
    }
    Text {
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        color: Theme.faint
        font.pointSize: Ui.fonts.getFontPointSize("Text", "Small")
        text: Ui.texts.translatedTexts[dial.caption]
    }
    Rectangle {
        id: handle

        width: Metrics.gauge.handle
        height: Metrics.gauge.handle
        color: Theme.pick("Outline")
        states: [
            State {
                when: area.pressed
                PropertyChanges { target: handle; color: Theme.pick("SurfacePressed") }
            },
            State {
                when: dial.accent === Theme.accents.loud
                PropertyChanges {
                    target: handle
                    color: Theme.pick("TextOnAlarm")
                }
            }
        ]

        MouseArea {
            id: area

            anchors.fill: parent
        }
    }
}
