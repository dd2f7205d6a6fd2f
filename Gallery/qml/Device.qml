import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "device" as Device

// The front end of a room controller. Its colors, fonts, sizes, texts and icons come from the library; the measured
// values are made up.
Flickable {
    id: page

    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property bool isSample: "Screen/width" in dims && Catalog.revision >= 0
        && Catalog.colors("Day/Text").length > 0
    property real targetTemperature: 21.5

    contentWidth: Math.max(width, device.width)
    contentHeight: Math.max(height, device.height)
    clip: true
    boundsBehavior: Flickable.StopAtBounds

    Rectangle {
        width: page.contentWidth
        height: page.contentHeight
        color: "#707880"
    }

    Blocks.Title {
        anchors.centerIn: parent
        visible: !page.isSample
        color: "white"
        text: "This page needs the sample resources. The other pages show the loaded resources."
    }

    Loader {
        id: device

        x: Math.max(0, (page.width - width) / 2)
        active: page.isSample
        width: active ? page.dims["Screen/width"] : 0
        height: active ? page.dims["Screen/height"] : 0
        clip: true
        sourceComponent: Rectangle {
            color: Ui.colors.getColor(Device.Theme.name, "Background")

            Loader {
                anchors.fill: parent
                sourceComponent: View.page === "DeviceSettings" || search !== "" ? settings : home
            }
            Loader {
                anchors.fill: parent
                active: View.page === "DeviceDialog"
                sourceComponent: Device.AlarmDialog {}
            }
        }
    }

    Component {
        id: home

        Device.Home {
            targetTemperature: page.targetTemperature
            onTemperatureAdjusted: difference => page.targetTemperature += difference
        }
    }

    Component {
        id: settings

        Device.Settings {
            filter: search
        }
    }
}
