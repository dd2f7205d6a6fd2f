import QtQuick 2.15
import Tarnis 1.0

// The front end of a heating controller: components that get their names from models, parameters and aliases.
Item {
    id: root

    property string context: "defaultContext"
    property string screen: "rooms"
    readonly property var screens: ["rooms", "week", "lock"]
    readonly property string theme: context === "nightMode" ? "Night" : "Day"
    readonly property var size: Ui.dimensions.uiElementDimensions

    Rectangle {
        anchors.fill: parent
        color: Ui.colors.getColor(root.theme, "Background")
    }
    TitleBar {
        id: bar

        theme: root.theme
        context: root.context
        heading.text: Ui.texts.translatedTexts["text://Home/Title"]
        leading.alias: "home"
        trailing.alias: "information"
    }
    Loader {
        anchors.top: bar.bottom
        anchors.bottom: footer.top
        width: parent.width
        sourceComponent: pageOf(root.screen)

        function pageOf(name) {
            if (name === "week")
                return week;
            return name === "lock" ? lock : rooms;
        }
    }
    Row {
        id: footer

        anchors.bottom: parent.bottom
        height: root.size["Screen/footerHeight"]
        spacing: root.size["Button/gap"]

        Repeater {
            model: [
                { page: "rooms", text: "text://Home/Title", icon: "home" },
                { page: "week", text: "text://Schedule/Title", icon: "schedule" },
                { page: "lock", text: "text://Settings/Title", icon: "lock" }
            ]
            delegate: ActionButton {
                required property var modelData

                theme: root.theme
                context: root.context
                isCurrent: root.screen === modelData.page
                icon: modelData.icon
                label: modelData.text
                onClicked: root.screen = modelData.page
            }
        }
    }

    Component {
        id: rooms

        RoomList {
            theme: root.theme
            context: root.context
        }
    }
    Component {
        id: week

        WeekView {
            theme: root.theme
            context: root.context
        }
    }
    Component {
        id: lock

        Keypad {
            theme: root.theme
            context: root.context
        }
    }
}
