import QtQuick 2.15
import Tarnis 1.0
import "parts" as Parts
import Shared 1.0

Item {
    id: page

    component Key: Item {
        property string name
        Rectangle { color: Ui.colors.getColor("Day", parent.name) }
    }
    component Small: Parts.Tile { size: "Smal" } // unknown Text/Smal

    readonly property var rows: [
        { alias: "home", title: "text://Button/Ok" },
        { alias: "hoome", title: "text://Button/Okk" } // unknown hoome // unknown text://Button/Okk
    ]

    Key { name: "Acent" } // unknown Day/Acent
    Parts.Tile { alias: "bakc" } // unknown bakc
    Parts.Tile { alias: "back"; size: "Normall" } // unknown Text/Normall
    Small { alias: "back" }
    Named { name: "wiffi" } // unknown wiffi
    Loader { sourceComponent: Parts.Tile { alias: "lockk" } } // unknown lockk
    Component {
        id: later
        Parts.Tile { alias: "pluss" } // unknown pluss
    }
    Loader {
        sourceComponent: later
        onLoaded: item.size = "Largee" // unknown Text/Largee
    }
    Loader { source: "parts/Loaded.qml" }
    Repeater {
        model: page.rows
        delegate: Row {
            required property var modelData
            Parts.Tile { alias: modelData.alias }
            Text { text: Ui.texts.translatedTexts[modelData.title] }
        }
    }
    Repeater {
        model: ["next", "nextt"] // unknown nextt
        Parts.Tile { alias: modelData }
    }
    ListModel {
        id: list
        ListElement { icon: "alarm"; key: "Text" }
        ListElement { icon: "alarrm"; key: "Alarrm" } // unknown alarrm // unknown Day/Alarrm
    }
    ListView {
        model: list
        delegate: Parts.Row {}
    }
    ListView {
        model: list
        delegate: Rectangle { color: Ui.colors.getColor("Day", model.key) }
    }
    Text { color: Ui.colors.getColor(Settings.group, "Text") }
    Component.onCompleted: list.append({ icon: "setings", key: "Text" }) // unknown setings
}
