import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "device" as Device

// The front end of a room controller. Its colors, fonts, sizes, texts and icons come from the library; the measured
// values are made up.
Blocks.Page {
    id: page

    title: "Device"
    subtitle: "Sample front end"
    isSearchable: View.page === "DeviceSettings"

    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property bool hasTextColor: ColorCatalog.revision >= 0
        && ColorCatalog.entries("Day/Text").some(entry => entry.group === "Day" && entry.key === "Text")
    readonly property var missing: (hasTextColor ? [] : ["the color Day/Text"])
        .concat("Screen/width" in dims ? [] : ["the dimension Screen/width"])
    readonly property bool isSample: missing.length === 0
    property real targetTemperature: 21.5

    clip: true

    Rectangle {
        anchors.fill: parent
        color: "#707880"
    }

    Blocks.Title {
        anchors.centerIn: parent
        width: Math.min(parent.width - 32, 560)
        visible: !page.isSample
        color: "white"
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: !Ui.ready ? "Waiting for the resources."
            : "This page shows the front end of the sample device. The loaded resources are not made for it: they do not "
              + "contain " + page.missing.join(" and ") + ". The other pages show all of them."
    }

    Loader {
        id: device

        x: Math.max(0, (parent.width - width * scale) / 2)
        active: page.isSample
        width: active ? page.dims["Screen/width"] : 0
        height: active ? page.dims["Screen/height"] : 0
        // A screen of the same size has no room for the toolbar.
        scale: active ? Math.min(1, parent.width / width, parent.height / height) : 1
        transformOrigin: Item.TopLeft
        clip: true
        sourceComponent: Rectangle {
            color: Ui.colors.getColor(Device.Theme.name, "Background")

            Loader {
                anchors.fill: parent
                sourceComponent: View.page === "DeviceSettings" ? settings : home
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
            filter: View.search
        }
    }
}
