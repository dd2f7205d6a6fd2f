import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks

Blocks.Rows {
    id: page

    readonly property int columnWidth: (width - 24) / (Ui.languages.length + 1)

    rows: Catalog.revision >= 0 ? Catalog.texts(View.search) : []
    header: Row {
        x: 8
        height: 28
        Repeater {
            model: ["URL"].concat(Ui.languages)
            Blocks.Title {
                width: page.columnWidth
                text: modelData + (modelData === Ui.language ? " (shown)" : "")
            }
        }
    }
    delegate: Blocks.Entry {
        readonly property string url: modelData

        width: page.width
        expression: 'Ui.texts.translatedTexts["' + url + '"]'
        contentItem: Row {
            leftPadding: 2
            Blocks.Caption {
                width: page.columnWidth
                rightPadding: 6
                wrapMode: Text.WrapAnywhere
                text: url
            }
            Repeater {
                model: Ui.languages
                Blocks.Caption {
                    readonly property bool isMissing: Catalog.revision >= 0 && Catalog.isTextMissing(url, modelData)

                    width: page.columnWidth
                    rightPadding: 6
                    color: isMissing ? "#b3261e" : "#101820"
                    font.pixelSize: 13
                    wrapMode: Text.Wrap
                    text: isMissing ? "missing" : modelData === Ui.language ? Ui.texts.translatedTexts[url]
                                                                               : Catalog.text(url, modelData)
                }
            }
        }
    }
}
