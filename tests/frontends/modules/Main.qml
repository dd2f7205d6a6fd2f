import QtQuick 2.15
import Tarnis 1.0
import "lib/palette.js" as Palette
import "lib/pages.mjs" as Pages

// The front end of a ventilation unit: the names come from JavaScript modules.
Rectangle {
    id: root

    property string context: "defaultContext"
    property string screen: "air"
    readonly property var screens: Pages.names
    readonly property var current: Pages.find(screen)

    function paint(role) {
        return Palette.color(Ui.colors, context, role);
    }

    color: paint("page")

    Text {
        id: heading

        height: Ui.dimensions.uiElementDimensions["Page/titleHeight"]
        color: root.paint("title")
        font.family: Ui.fonts.getFontFamily(Palette.fonts.title.group)
        font.pointSize: Palette.points(Ui.fonts, "title")
        text: Ui.texts.translatedTexts[root.current.title]
    }
    Image {
        anchors.right: parent.right
        source: Ui.icons.getIconPathAsFileUrl(root.current.icon, root.context)
    }
    Row {
        id: tabs

        anchors.bottom: parent.bottom

        Repeater {
            model: Pages.all()
            delegate: Tab {
                context: root.context
                entry: modelData
                isCurrent: root.screen === modelData.name
                onChosen: name => root.screen = name
            }
        }
    }
    Loader {
        anchors.top: heading.bottom
        anchors.bottom: tabs.top
        width: parent.width
        sourceComponent: ({ air: air, alarms: alarms, units: units })[root.screen]
    }

    Component {
        id: air

        AirPage {
            context: root.context
        }
    }
    Component {
        id: alarms

        AlarmPage {
            context: root.context
        }
    }
    Component {
        id: units

        UnitPage {
            context: root.context
        }
    }
}
