import QtQuick 2.15
import Tarnis 1.0
import "lib/palette.js" as Palette
import "lib/air.mjs" as Air
import "lib/icons.mjs" as Icons

Column {
    id: page

    property string context
    property int carbonDioxide: 640
    readonly property var level: Air.level(carbonDioxide)
    readonly property var icons: Icons.iconsOf("fan", "water", "lamp", "shade", "door")

    spacing: Ui.dimensions.uiElementDimensions["Spacing/large"]

    Text {
        color: Ui.colors.getColor(Palette.theme(page.context), page.level.color)
        font.family: Ui.fonts.getFontFamily("Numeric")
        font.pointSize: Palette.points(Ui.fonts, "value")
        text: page.carbonDioxide
    }
    Text {
        color: Palette.color(Ui.colors, page.context, "hint")
        font.pointSize: Ui.fonts.getFontPointSize(Palette.fonts.unit.group, Palette.fonts["unit"].size)
        text: Ui.texts.translatedTexts[page.level.text]
    }
    Repeater {
        model: Air.readings()
        delegate: Text {
            height: Ui.dimensions.uiElementDimensions["List/rowHeight"]
            color: Palette.color(Ui.colors, page.context, index === 0 ? "good" : "poor")
            font.pointSize: Palette.points(Ui.fonts, "normal")
            text: Ui.texts.translatedTexts[modelData.title] + ": " + modelData.value
        }
    }
    Row {
        Repeater {
            model: page.icons
            delegate: Image {
                source: Ui.icons.getIconPathAsFileUrl(modelData, page.context)
            }
        }
    }
    MouseArea {
        width: Ui.dimensions.uiElementDimensions["Slider/minimumWidth"]
        height: Ui.dimensions.uiElementDimensions["Slider/height"]
        onClicked: page.carbonDioxide = page.carbonDioxide < 1400 ? page.carbonDioxide + 500 : 640

        Rectangle {
            anchors.fill: parent
            color: Palette.color(Ui.colors, page.context, "line")
        }
    }
}
