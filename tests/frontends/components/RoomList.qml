import QtQuick 2.15
import Tarnis 1.0

ListView {
    id: list

    required property string theme
    required property string context
    readonly property var texts: Ui.texts.translatedTexts

    clip: true
    spacing: Ui.dimensions.uiElementDimensions["Spacing/small"]
    header: Caption {
        theme: list.theme
        family: "Heading"
        role: "Group"
        tint: "TextSecondary"
        text: list.texts["text://Home/RoomTemperature"]
    }
    model: ListModel {
        ListElement { name: "text://Room/LivingRoom"; glyph: "heating"; tint: "Heating"; degrees: 21; mode: "text://Mode/Comfort" }
        ListElement { name: "text://Room/Stairs"; glyph: "cooling"; tint: "Cooling"; degrees: 17; mode: "text://Mode/Eco" }
        ListElement { name: "text://Room/Hallway"; glyph: "fan"; tint: "AirPoor"; degrees: 18; mode: "text://Mode/Away" }
    }
    delegate: RoomRow {
        width: ListView.view.width
        theme: list.theme
        context: list.context
    }
    footer: Row {
        Repeater {
            model: ListModel {
                ListElement { sign: "plus" }
                ListElement { sign: "minus" }
            }
            delegate: Icon {
                alias: sign
                context: list.context
                dimension: "IconButton/iconSize"
            }
        }
    }
}
