import QtQuick 2.15
import Tarnis 1.0

Item {
    id: home

    property real targetTemperature
    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property var texts: Ui.texts.translatedTexts
    signal temperatureAdjusted(real difference)
    signal settingsRequested()
    signal alarmRequested()

    Header {
        title: home.texts["text://Room/LivingRoom"]
        leftIcon: "settings"
        onLeftClicked: home.settingsRequested()
    }
    Flow {
        x: (parent.width - home.dims["Page/contentWidth"]) / 2
        y: home.dims["Header/height"] + home.dims["Screen/margin"]
        width: home.dims["Page/contentWidth"]
        spacing: home.dims["Page/columnGap"]

        Tile {
            alias: "thermometer"
            title: home.texts["text://Home/RoomTemperature"]
            value: "22.4°"
        }
        Tile {
            alias: "heating"
            title: home.texts["text://Home/TargetTemperature"]
            value: home.targetTemperature.toFixed(1) + "°"
            accent: "Heating"
            // Only where a row has room for more than three tiles.
            isWide: home.dims["Page/contentWidth"] > 4 * home.dims["Tile/width"]
            RoundButton {
                alias: "minus"
                onClicked: home.temperatureAdjusted(-0.5)
            }
            RoundButton {
                alias: "plus"
                onClicked: home.temperatureAdjusted(0.5)
            }
        }
        Tile {
            alias: "humidity"
            title: home.texts["text://Home/Humidity"]
            value: "46 %"
            accent: "Humidity"
        }
        Tile {
            alias: "airQuality"
            title: home.texts["text://Home/AirQuality"]
            value: home.texts["text://Air/Good"]
            accent: "AirGood"
        }
        Tile {
            alias: "lightOn"
            title: home.texts["text://Home/Light"]
            value: home.texts["text://Common/On"]
            accent: "LightOn"
        }
        Tile {
            alias: "blindsDown"
            title: home.texts["text://Home/Blinds"]
            value: "60 %"
        }
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: home.dims["Screen/margin"]
        spacing: home.dims["Button/gap"]

        TextButton {
            isPrimary: true
            text: home.texts["text://Mode/Comfort"]
        }
        TextButton {
            text: home.texts["text://Mode/Eco"]
        }
        TextButton {
            text: home.texts["text://Mode/Away"]
        }
        RoundButton {
            alias: "warning"
            onClicked: home.alarmRequested()
        }
    }
}
