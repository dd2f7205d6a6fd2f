import QtQuick 2.15
import Tarnis 1.0
import "style" as Style

// The front end of a thermostat: singletons and states say what is looked up.
Item {
    id: root

    property string context: "defaultContext"
    property string screen: "idle"
    readonly property var screens: ["idle", "heating", "cooling", "alarm", "menu"]

    state: screen
    states: [
        State {
            name: "idle"
        },
        State {
            name: "heating"
            PropertyChanges { target: glyph; name: "heating" }
            PropertyChanges { target: dial; accent: Style.Theme.accents.warm; caption: "text://Home/TargetTemperature" }
            PropertyChanges { target: headline; text: Style.Words.mode("Comfort") }
        },
        State {
            name: "cooling"
            PropertyChanges { target: glyph; name: "cooling" }
            PropertyChanges { target: dial; accent: Style.Theme.accents.cold; caption: "text://Home/OutdoorTemperature" }
            PropertyChanges { target: headline; text: Style.Words.mode("Eco") }
        },
        State {
            name: "alarm"
            extend: "heating"
            PropertyChanges { target: glyph; name: "alarm" }
            PropertyChanges { target: dial; accent: Style.Theme.accents.loud; size: "Alarm"; caption: "text://Dialog/WindowOpen" }
        },
        State {
            name: "menu"
            PropertyChanges { target: glyph; name: "settings" }
            PropertyChanges { target: menu; active: true }
            PropertyChanges { target: headline; text: Ui.texts.translatedTexts["text://Settings/Title"] }
        }
    ]
    transitions: Transition {
        ColorAnimation { duration: 200 }
    }

    Binding {
        target: Style.Theme
        property: "context"
        value: root.context
    }
    Rectangle {
        anchors.fill: parent
        color: Style.Theme.background
    }
    Style.Glyph {
        id: glyph

        x: Style.Metrics.margin
        y: Style.Metrics.margin
        name: "home"
    }
    Text {
        id: headline

        anchors.horizontalCenter: parent.horizontalCenter
        height: Style.Metrics.of("Header", "height")
        color: Style.Theme.text
        font.family: Ui.fonts.getFontFamily("Heading")
        font.pointSize: Ui.fonts.getFontPointSize("Heading", "Welcome")
        text: Style.Words.mode("Away")
    }
    Dial {
        id: dial

        anchors.centerIn: parent
    }
    Loader {
        id: menu

        anchors.fill: parent
        active: false
        source: "Menu.qml"
    }
    Contrast {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
}
