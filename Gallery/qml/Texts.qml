import QtQuick 2.15
import Tarnis 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    title: "Texts"
    subtitle: list.count + " texts in " + Ui.languages.length + " languages"
    isEmpty: list.count === 0
    emptyText: "The resources contain no texts."

    Blocks.Rows {
        id: list

        anchors.fill: parent
        readonly property int columnWidth: (width - 24) / (Ui.languages.length + 1)

        rows: TextCatalog.revision >= 0 ? TextCatalog.urls(View.search) : []
        header: Row {
            x: 8
            height: 28
            Repeater {
                model: ["URL"].concat(Ui.languages)
                Blocks.Title {
                    width: list.columnWidth
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
                    width: list.columnWidth
                    rightPadding: 6
                    wrapMode: Text.WrapAnywhere
                    text: url
                }
                Repeater {
                    model: Ui.languages
                    Blocks.Caption {
                        readonly property bool isMissing: TextCatalog.revision >= 0 && TextCatalog.isMissing(url, modelData)

                        width: list.columnWidth
                        rightPadding: 6
                        color: isMissing ? Theme.error : Theme.text
                        font.pixelSize: 13
                        wrapMode: Text.Wrap
                        text: isMissing ? "missing" : modelData === Ui.language ? Ui.texts.translatedTexts[url]
                                                                                   : TextCatalog.text(url, modelData)
                    }
                }
            }
        }
    }
}
