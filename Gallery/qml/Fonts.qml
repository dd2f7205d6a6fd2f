import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "fonts" as Fonts
import "theme"

// A waterfall of the sizes of each group, below the family of the group and what it lacks.
Blocks.Page {
    id: page

    readonly property int dotsPerInch: Math.round(Screen.logicalPixelDensity * 25.4)
    readonly property string defaultSample: TextCatalog.revision >= 0 ? FontCatalog.defaultSample(Ui.language) : ""

    function firstGroupOf(family) {
        return list.rows.find(entry => Ui.fonts.getFontFamily(entry.group) === family).group
    }

    title: "Fonts"
    subtitle: list.count + " sizes in pixels of the design, drawn in points at " + dotsPerInch + " dots per inch"
    isEmpty: list.count === 0
    emptyText: "The font file contains no sizes."
    controls: [
        TextField {
            width: Math.min(480, Math.max(240, page.width - 330))
            height: Theme.controlHeight
            selectByMouse: true
            placeholderText: page.defaultSample
            placeholderTextColor: Theme.textSecondary
            Accessible.name: "Sample text"
            ToolTip.text: "Sample text"
            ToolTip.visible: hovered
            text: FontCatalog.sample
            onTextEdited: FontCatalog.sample = text
            Keys.onEscapePressed: FontCatalog.sample = ""
        },
        CheckBox {
            height: Theme.controlHeight
            text: "More missing characters"
            checked: FontCatalog.showsManyMissing
            onToggled: FontCatalog.showsManyMissing = checked
        }
    ]

    Blocks.Rows {
        id: list

        anchors.fill: parent
        rows: FontCatalog.revision >= 0 ? FontCatalog.entries(View.search) : []
        delegate: Column {
            id: row

            readonly property string family: Ui.fonts.getFontFamily(modelData.group)
            readonly property bool isFirstOfGroup: index === 0 || list.rows[index - 1].group !== modelData.group

            function clicked() {
                size.clicked()
            }
            width: list.width

            Loader {
                width: parent.width
                active: row.isFirstOfGroup
                visible: active
                sourceComponent: Fonts.Family {
                    group: modelData.group
                    describedGroup: page.firstGroupOf(row.family)
                    family: row.family
                }
            }
            Fonts.Size {
                id: size

                width: parent.width
                group: modelData.group
                key: modelData.key
                pixels: modelData.value
                family: row.family
                sample: FontCatalog.sample === "" ? page.defaultSample : FontCatalog.sample
            }
        }
    }
}
