import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import "blocks" as Blocks

// The front end of a room controller, made of nothing but the library's answers. Its numbers are made up.
Flickable {
    id: page

    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property var texts: Ui.texts.translatedTexts
    readonly property string theme: View.context === "nightMode" ? "Night" : "Day"
    readonly property bool isSample: "Screen/width" in dims && Catalogue.revision >= 0
        && Catalogue.colors("Day/Text").length > 0
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
        text: "These resources are not those of the sample device. The other pages show what they hold."
    }

    Loader {
        id: device

        x: Math.max(0, (page.width - width) / 2)
        active: page.isSample
        width: active ? page.dims["Screen/width"] : 0
        height: active ? page.dims["Screen/height"] : 0
        clip: true
        sourceComponent: Rectangle {
            color: Ui.colors.getColor(theme, "Background")
            Loader {
                anchors.fill: parent
                sourceComponent: View.page === "DeviceSettings" || search !== "" ? settings : home
            }
            Loader {
                anchors.fill: parent
                active: View.page === "DeviceDialog"
                sourceComponent: dialog
            }
        }
    }

    component Label: Text {
        property string group: "Text"
        property string size: "Normal"

        color: Ui.colors.getColor(theme, "Text")
        elide: Text.ElideRight
        font.family: Ui.fonts.getFontFamily(group)
        font.pointSize: Ui.fonts.getFontPointSize(group, size)
        textFormat: Text.PlainText
    }

    component Icon: Image {
        property string alias
        property int size: page.dims["Icon/normal"]

        width: size
        height: size
        sourceSize: Qt.size(size, size)
        // The fragment makes Image read a file again that was replaced under the same path.
        source: Ui.icons.getIconPathAsFileUrl(alias, View.context) + "#" + Catalogue.revision
    }

    component RoundButton: AbstractButton {
        property string alias

        width: page.dims["IconButton/size"]
        height: page.dims["IconButton/size"]
        Accessible.name: alias
        background: Rectangle {
            radius: page.dims["IconButton/cornerRadius"]
            color: Ui.colors.getColor(theme, parent.down ? "SurfacePressed" : "SurfaceRaised")
            border.width: parent.activeFocus ? page.dims["Border/focus"] : page.dims["Border/normal"]
            border.color: Ui.colors.getColor(theme, parent.activeFocus ? "Focus" : "Outline")
        }
        Icon {
            anchors.centerIn: parent
            size: page.dims["IconButton/iconSize"]
            alias: parent.alias
        }
    }

    component TextButton: AbstractButton {
        id: button

        property bool isPrimary: false

        width: Math.max(page.dims["Button/minimumWidth"], label.implicitWidth + 2 * page.dims["Button/padding"])
        height: page.dims["Button/height"]
        background: Rectangle {
            radius: page.dims["Button/cornerRadius"]
            color: Ui.colors.getColor(theme, button.isPrimary ? (button.down ? "AccentPressed" : "Accent")
                                                              : (button.down ? "SurfacePressed" : "SurfaceRaised"))
            border.width: button.activeFocus ? page.dims["Border/focus"] : page.dims["Border/normal"]
            border.color: Ui.colors.getColor(theme, button.activeFocus ? "Focus" : "Outline")
        }
        Label {
            id: label

            anchors.centerIn: parent
            size: "Button"
            color: Ui.colors.getColor(theme, button.isPrimary ? "TextOnAccent" : "Text")
            text: button.text
        }
    }

    component Header: Rectangle {
        property string title
        property alias leftIcon: left.alias
        signal left()

        width: parent.width
        height: page.dims["Header/height"]
        color: Ui.colors.getColor(theme, "Surface")

        RoundButton {
            id: left

            x: page.dims["Header/padding"]
            anchors.verticalCenter: parent.verticalCenter
            width: height
            height: parent.height - page.dims["Spacing/tiny"]
            onClicked: parent.left()
        }
        Label {
            anchors.left: left.right
            anchors.leftMargin: page.dims["Header/padding"]
            anchors.right: clock.left
            anchors.verticalCenter: parent.verticalCenter
            group: "Heading"
            size: "Page"
            text: parent.title
        }
        Label {
            id: clock

            anchors.right: wifi.left
            width: page.dims["Header/clockWidth"]
            anchors.verticalCenter: parent.verticalCenter
            group: "Numeric"
            size: "Clock"
            text: "17:04"
        }
        Icon {
            id: wifi

            anchors.right: parent.right
            anchors.rightMargin: page.dims["Header/padding"]
            anchors.verticalCenter: parent.verticalCenter
            size: page.dims["Header/iconSize"]
            alias: "wifi"
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: page.dims["Border/thin"]
            color: Ui.colors.getColor(theme, "Divider")
        }
    }

    component Tile: Rectangle {
        property string alias
        property string title
        property string value
        property string accent: "Text"
        property bool isWide: false
        default property alias controls: controls.data

        width: page.dims["Tile/width"] * (isWide ? 2 : 1) + (isWide ? page.dims["Page/columnGap"] : 0)
        height: page.dims["Tile/height"]
        radius: page.dims["Tile/cornerRadius"]
        color: Ui.colors.getColor(theme, "SurfaceRaised")
        border.width: page.dims["Border/thin"]
        border.color: Ui.colors.getColor(theme, "Outline")

        Icon {
            id: icon

            x: page.dims["Tile/padding"]
            y: page.dims["Tile/padding"]
            size: page.dims["Tile/iconSize"]
            alias: parent.alias
        }
        Label {
            anchors.left: icon.right
            anchors.leftMargin: page.dims["Spacing/small"]
            anchors.right: parent.right
            anchors.rightMargin: page.dims["Tile/padding"]
            anchors.verticalCenter: icon.verticalCenter
            color: Ui.colors.getColor(theme, "TextSecondary")
            maximumLineCount: 2
            wrapMode: Text.Wrap
            text: parent.title
        }
        Label {
            x: page.dims["Tile/padding"]
            anchors.bottom: parent.bottom
            anchors.bottomMargin: page.dims["Tile/padding"]
            width: parent.width - 2 * x - (controls.children.length > 0 ? controls.width : 0)
            height: page.dims["Tile/valueHeight"]
            verticalAlignment: Text.AlignVCenter
            fontSizeMode: Text.HorizontalFit
            minimumPointSize: Ui.fonts.getFontPointSize("Text", "Small")
            group: "Numeric"
            size: "Value"
            color: Ui.colors.getColor(theme, parent.accent)
            text: parent.value
        }
        Row {
            id: controls

            anchors.right: parent.right
            anchors.rightMargin: page.dims["Spacing/small"]
            anchors.bottom: parent.bottom
            anchors.bottomMargin: page.dims["Tile/padding"]
            spacing: page.dims["Spacing/tiny"]
        }
    }

    Component {
        id: home

        Item {
            Header {
                title: page.texts["text://Room/LivingRoom"]
                leftIcon: "settings"
                onLeft: View.page = "DeviceSettings"
            }
            Flow {
                x: (parent.width - page.dims["Page/contentWidth"]) / 2
                y: page.dims["Header/height"] + page.dims["Screen/margin"]
                width: page.dims["Page/contentWidth"]
                spacing: page.dims["Page/columnGap"]

                Tile {
                    alias: "thermometer"
                    title: page.texts["text://Home/RoomTemperature"]
                    value: "22.4°"
                }
                Tile {
                    alias: "heating"
                    title: page.texts["text://Home/TargetTemperature"]
                    value: page.targetTemperature.toFixed(1) + "°"
                    accent: "Heating"
                    // Where a row has room for more than three tiles.
                    isWide: page.dims["Page/contentWidth"] > 4 * page.dims["Tile/width"]
                    RoundButton {
                        alias: "minus"
                        onClicked: page.targetTemperature -= 0.5
                    }
                    RoundButton {
                        alias: "plus"
                        onClicked: page.targetTemperature += 0.5
                    }
                }
                Tile {
                    alias: "humidity"
                    title: page.texts["text://Home/Humidity"]
                    value: "46 %"
                    accent: "Humidity"
                }
                Tile {
                    alias: "airQuality"
                    title: page.texts["text://Home/AirQuality"]
                    value: page.texts["text://Air/Good"]
                    accent: "AirGood"
                }
                Tile {
                    alias: "lightOn"
                    title: page.texts["text://Home/Light"]
                    value: page.texts["text://Common/On"]
                    accent: "LightOn"
                }
                Tile {
                    alias: "blindsDown"
                    title: page.texts["text://Home/Blinds"]
                    value: "60 %"
                }
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                anchors.bottomMargin: page.dims["Screen/margin"]
                spacing: page.dims["Button/gap"]
                TextButton {
                    isPrimary: true
                    text: page.texts["text://Mode/Comfort"]
                }
                TextButton {
                    text: page.texts["text://Mode/Eco"]
                }
                TextButton {
                    text: page.texts["text://Mode/Away"]
                }
                RoundButton {
                    alias: "warning"
                    onClicked: View.page = "DeviceDialog"
                }
            }
        }
    }

    Component {
        id: settings

        Item {
            readonly property var rows: [
                { alias: "language", title: page.texts["text://Settings/Language"], value: View.language },
                { alias: "brightness", title: page.texts["text://Settings/Brightness"], value: "80 %" },
                { alias: "home", title: page.texts["text://Settings/Display"], value: page.theme },
                { alias: "wifi", title: page.texts["text://Settings/Wifi"],
                  value: page.texts["text://Wifi/Connected"].arg("Studio 3") },
                { alias: "schedule", title: page.texts["text://Schedule/Title"],
                  value: page.texts["text://Schedule/NextSwitch"].arg("17:30") },
                { alias: "calendar", title: page.texts["text://Schedule/HolidaysThisYear"],
                  value: page.texts["text://Month/January"] }
            ]

            Header {
                title: page.texts["text://Settings/Title"]
                leftIcon: "back"
                onLeft: View.page = "Device"
            }
            ListView {
                x: page.dims["Page/padding"]
                y: page.dims["Header/height"] + page.dims["Screen/margin"]
                width: parent.width - 2 * x
                height: parent.height - y
                clip: true
                model: rows.filter(row => row.title.toLowerCase().includes(search.toLowerCase()))
                delegate: Rectangle {
                    width: ListView.view.width
                    height: page.dims["List/rowHeight"]
                    color: Ui.colors.getColor(theme, "SurfaceRaised")

                    Icon {
                        id: icon

                        x: page.dims["List/padding"]
                        anchors.verticalCenter: parent.verticalCenter
                        size: page.dims["List/iconSize"]
                        alias: modelData.alias
                    }
                    Label {
                        anchors.left: icon.right
                        anchors.leftMargin: page.dims["List/padding"]
                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width / 2
                        text: modelData.title
                    }
                    Label {
                        anchors.right: arrow.left
                        anchors.rightMargin: page.dims["Spacing/small"]
                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width / 3
                        horizontalAlignment: Text.AlignRight
                        color: Ui.colors.getColor(theme, "TextSecondary")
                        size: "Small"
                        text: modelData.value
                    }
                    Icon {
                        id: arrow

                        anchors.right: parent.right
                        anchors.rightMargin: page.dims["List/padding"]
                        anchors.verticalCenter: parent.verticalCenter
                        size: page.dims["List/indicatorSize"]
                        alias: "next"
                    }
                    Rectangle {
                        x: page.dims["List/dividerInset"]
                        anchors.bottom: parent.bottom
                        width: parent.width - 2 * x
                        height: page.dims["Border/thin"]
                        color: Ui.colors.getColor(theme, "Divider")
                    }
                }
            }
        }
    }

    Component {
        id: dialog

        Rectangle {
            color: Ui.colors.getColor(theme, "Scrim")

            MouseArea {
                anchors.fill: parent // what lies below is not to be reached
            }
            Rectangle {
                anchors.centerIn: parent
                width: page.dims["Dialog/width"]
                height: Math.max(page.dims["Dialog/minimumHeight"],
                                 body.y + body.height + buttons.height + 2 * page.dims["Dialog/padding"])
                radius: page.dims["Dialog/cornerRadius"]
                color: Ui.colors.getColor(theme, "SurfaceRaised")
                border.width: page.dims["Border/focus"]
                border.color: Ui.colors.getColor(theme, "Alarm")

                Icon {
                    id: icon

                    x: page.dims["Dialog/padding"]
                    y: page.dims["Dialog/padding"]
                    size: page.dims["Dialog/iconSize"]
                    alias: "alarm"
                }
                Label {
                    anchors.left: icon.right
                    anchors.leftMargin: page.dims["Spacing/medium"]
                    anchors.verticalCenter: icon.verticalCenter
                    group: "Heading"
                    size: "Dialog"
                    text: page.texts["text://Dialog/AlarmTitle"]
                }
                Label {
                    id: body

                    x: page.dims["Dialog/padding"]
                    y: icon.y + icon.height + page.dims["Spacing/medium"]
                    width: parent.width - 2 * x
                    wrapMode: Text.Wrap
                    text: page.texts["text://Dialog/AlarmBody"].arg(page.texts["text://Room/Hallway"]).arg("17:04")
                        + "\n" + page.texts["text://Dialog/WindowOpen"]
                }
                Row {
                    id: buttons

                    anchors.right: parent.right
                    anchors.rightMargin: page.dims["Dialog/padding"]
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: page.dims["Dialog/padding"]
                    spacing: page.dims["Dialog/buttonGap"]
                    TextButton {
                        text: page.texts["text://Button/Cancel"]
                        onClicked: View.page = "Device"
                    }
                    TextButton {
                        isPrimary: true
                        focus: true
                        text: page.texts["text://Button/Acknowledge"]
                        onClicked: View.page = "Device"
                    }
                }
            }
        }
    }
}
