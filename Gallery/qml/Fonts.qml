import QtQuick 2.15
import QtQuick.Window 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    title: "Fonts"
    subtitle: list.count + " sizes in pixels of the design, drawn in points"
    isEmpty: list.count === 0
    emptyText: "The font file contains no sizes."

    Blocks.Rows {
        id: list

        anchors.fill: parent
        readonly property int dotsPerInch: Math.round(Screen.logicalPixelDensity * 25.4)

        rows: FontCatalog.revision >= 0 ? FontCatalog.entries(View.search) : []
        delegate: Blocks.Entry {
            readonly property string family: Ui.fonts.getFontFamily(modelData.group)
            readonly property string usedFamily: FontCatalog.usedFamily(family)
            readonly property double points: Ui.fonts.getFontPointSize(modelData.group, modelData.key)

            width: page.width
            expression: 'Ui.fonts.getFontPointSize("' + modelData.group + '", "' + modelData.key + '")'
            contentItem: Column {
                leftPadding: 8
                Row {
                    spacing: 8
                    Blocks.Title {
                        text: modelData.group + "/" + modelData.key
                    }
                    Blocks.Caption {
                        text: family + ", " + modelData.value + " px, "
                            + points.toFixed(2) + " pt at " + list.dotsPerInch + " dots per inch"
                    }
                    Blocks.Mark {
                        text: family === usedFamily ? "" : "not installed; " + usedFamily + " is used instead"
                    }
                    Blocks.Mark {
                        text: points > 0 ? "" : "no size"
                    }
                }
                Text {
                    width: parent.width - 16
                    elide: Text.ElideRight
                    color: Theme.text
                    font.family: family
                    font.pointSize: points > 0 ? points : 1
                    text: "21.5 °C  Größe  室温"
                    textFormat: Text.PlainText
                }
            }
        }
    }
}
