import QtQuick 2.15
import Tarnis 1.0
import "."

// The front end of a room controller. Its colors, fonts, sizes, texts and icons come from the library; the measured
// values are made up.
Item {
    id: device

    // The gallery sets these two.
    property string context: "defaultContext"
    property string screen: "home"
    property real targetTemperature: 21.5
    // Other resources are not made for this front end.
    readonly property bool hasResources: "Screen/width" in Ui.dimensions.uiElementDimensions

    Binding {
        target: Theme
        property: "context"
        value: device.context
    }
    Loader {
        anchors.fill: parent
        active: device.hasResources
        sourceComponent: Rectangle {
            color: Ui.colors.getColor(Theme.name, "Background")

            Loader {
                anchors.fill: parent
                sourceComponent: device.screen === "settings" ? settings : home
            }
            Loader {
                anchors.fill: parent
                active: device.screen === "dialog"
                sourceComponent: dialog
            }
        }
    }

    Component {
        id: home

        Home {
            targetTemperature: device.targetTemperature
            onTemperatureAdjusted: difference => device.targetTemperature += difference
            onSettingsRequested: device.screen = "settings"
            onAlarmRequested: device.screen = "dialog"
        }
    }
    Component {
        id: settings

        Settings {
            onClosed: device.screen = "home"
        }
    }
    Component {
        id: dialog

        AlarmDialog {
            onClosed: device.screen = "home"
        }
    }
}
