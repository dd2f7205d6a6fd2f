import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "texts" as Texts
import "theme"

// One column per language. The column with the URLs stays in place while the others scroll.
Blocks.Page {
    id: page

    readonly property var languages: TextCatalog.hasPseudoColumns
        ? TextCatalog.languages.concat(TextCatalog.pseudoLanguages) : TextCatalog.languages
    readonly property int missing: TextCatalog.revision >= 0 ? TextCatalog.countMissing() : 0
    readonly property int identical: TextCatalog.revision >= 0 ? TextCatalog.countIdentical() : 0
    readonly property int total: TextCatalog.revision >= 0 ? TextCatalog.count() : 0

    title: "Texts"
    subtitle: total + " texts in " + TextCatalog.languages.length + " languages, " + missing + " missing, " + identical
        + " identical to English"
    isEmpty: list.count === 0
    emptyText: total > 0 ? "No text is missing." : "The resources contain no texts."
    controls: [
        CheckBox {
            height: Theme.controlHeight
            text: "Missing only (" + page.missing + ")"
            checked: TextCatalog.isMissingOnly
            onToggled: TextCatalog.isMissingOnly = checked
        },
        CheckBox {
            height: Theme.controlHeight
            text: "Pseudo languages"
            enabled: TextCatalog.pseudoLanguages.length > 0
            checked: TextCatalog.hasPseudoColumns
            onToggled: TextCatalog.hasPseudoColumns = checked
        },
        Blocks.Caption {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: page.identical + " identical to English"
        }
    ]

    Texts.Columns {
        id: layout

        anchors.fill: parent
        count: page.languages.length
    }
    Texts.Line {
        id: header

        width: parent.width
        columns: layout
        url: "URL"
        isHeader: true
        model: page.languages
        cell: Blocks.Title {
            width: layout.columnWidth
            leftPadding: Theme.small
            rightPadding: Theme.small
            text: TextCatalog.label(modelData) + (modelData === Ui.language ? " (shown)" : "")
        }
    }
    Blocks.Rows {
        id: list

        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: layout.isScrollable ? scrollBar.height : 0
        width: parent.width
        rows: TextCatalog.revision >= 0 ? TextCatalog.urls(View.search, TextCatalog.isMissingOnly) : []
        delegate: Blocks.Entry {
            width: list.width
            padding: 0
            expression: 'Ui.texts.translatedTexts["' + modelData + '"]'
            contentItem: Texts.Line {
                columns: layout
                url: modelData
                model: TextCatalog.revision >= 0 ? TextCatalog.cells(modelData).slice(0, layout.count) : []
                cell: Texts.Cell {
                    width: layout.columnWidth
                }
            }
        }
        Keys.onLeftPressed: layout.scroll(-1)
        Keys.onRightPressed: layout.scroll(1)

        WheelHandler {
            orientation: Qt.Horizontal
            target: null
            onWheel: event => layout.scroll(-event.angleDelta.x / 120)
        }
    }
    ScrollBar {
        id: scrollBar

        x: layout.urlWidth
        anchors.bottom: parent.bottom
        width: parent.width - x
        orientation: Qt.Horizontal
        policy: layout.isScrollable ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        size: layout.visibleWidth / layout.contentWidth
        position: layout.offset / layout.contentWidth
        onPositionChanged: if (pressed) layout.offset = position * layout.contentWidth
        Accessible.name: "Scroll the languages"
    }
}
