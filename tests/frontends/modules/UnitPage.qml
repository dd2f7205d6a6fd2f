import QtQuick 2.15
import Tarnis 1.0
import "lib/palette.js" as Palette
import "lib/icons.mjs" as Icons

Column {
    id: page

    property string context
    readonly property var rows: {
        const list = [];
        const add = (kind, title, value = "text://Common/On") => list.push({ kind, title, value });
        add("lamp", "text://Home/Light", "text://Common/Off");
        add("shade", "text://Home/Blinds");
        add("open", "text://Settings/Wifi", "text://Wifi/NotConnected");
        return list;
    }

    Repeater {
        model: page.rows
        delegate: Row {
            id: row

            readonly property var entry: modelData

            height: Ui.dimensions.uiElementDimensions["List/rowHeight"]

            Image {
                source: Ui.icons.getIconPathAsFileUrl(Icons.iconOf(row.entry.kind), page.context)
            }
            Text {
                color: Palette.color(Ui.colors, page.context, "title")
                text: Ui.texts.translatedTexts[row.entry.title]
            }
            Text {
                color: Palette.color(Ui.colors, page.context, "hint")
                text: Ui.texts.translatedTexts[row.entry.value]
            }
        }
    }
    Repeater {
        model: [["small", 1], ["normal", 2], ["hero", 3]]
        delegate: Rectangle {
            width: Ui.dimensions.uiElementDimensions[`Icon/${modelData[0]}`]
            height: Ui.dimensions.uiElementDimensions["Border/thin"] * modelData[1]
            color: Ui.colors.getColor(Palette.theme(page.context), "Outline")
        }
    }
}
