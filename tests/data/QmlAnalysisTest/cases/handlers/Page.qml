import QtQuick 2.15
import Tarnis 1.0
import Tarnis 1.0 as T

Item {
    id: page

    property var stored: Ui.colors
    property bool isText
    readonly property var map: Ui.dimensions.uiElementDimensions
    function handler() { return Ui.colors }
    function sized(map, name) { return map[name] }
    function tr(name) { return Ui.texts.translatedTexts[name] }

    Rectangle { color: page.stored.getColor("Day", "Acent") } // unknown Day/Acent
    Rectangle { color: page.handler().getColor("Day", "Txt") } // unknown Day/Txt
    Rectangle { color: Ui["colors"].getColor("Day", "Scrim1") } // unknown Day/Scrim1
    Rectangle { color: T.Ui.colors.getColor("Day", "Scrim2") } // unknown Day/Scrim2
    Rectangle { color: Ui.colors["getColor"]("Day", "Scrim3") } // unknown Day/Scrim3
    Rectangle {
        color: {
            const { colors, fonts } = Ui
            const { getColor } = colors
            return getColor("Day", "Scrim4") + fonts.getFontFamily("Txt") // unknown Day/Scrim4 // unknown "Txt"
        }
    }
    Rectangle { width: (isText ? Ui.texts.translatedTexts : page.map)["Tile/widht"] } // unknown dimension "Tile/widht" // unknown text "Tile/widht"
    Rectangle { width: page.sized(page.map, "Tile/heigth") } // unknown Tile/heigth
    Text { text: page.tr("text://Button/" + "Okk") } // unknown text://Button/Okk
    Text { text: page.tr(`text://${"Buton"}/Ok`) } // unknown text://Buton/Ok
    Text { text: page.tr("text://%1/Okk".arg("Button")) } // unknown text://Button/Okk
    Text { text: page.tr("text:__Button_Okk".replace("__", "//").replace("_", "/")) } // unknown text://Button/Okk
    Text { text: page.tr(["text:/", "Button", "Okkk"].join("/")) } // unknown text://Button/Okkk
    Text { text: page.tr("text://Button/".concat("Okk")) } // unknown text://Button/Okk
    Image { source: Ui.icons.getIconPath("HOMEE".toLowerCase()) } // unknown homee
    Image { source: Ui.icons.getIconPath(undefined || "homee") } // unknown homee
    Image { source: Ui.icons.getIconPath(null ?? "homee") } // unknown homee
    Passed { colors: Ui.colors; map: page.map }
}
