import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "../theme"

// The title of the page, its search, and the choices that all pages share.
Rectangle {
    id: header

    property var page // null while there is none

    function focusSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    height: Theme.controlHeight + Theme.large
    color: Theme.bar

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.medium
        anchors.rightMargin: Theme.medium
        spacing: Theme.small

        Column {
            Layout.fillWidth: true
            Layout.minimumWidth: 90
            Layout.preferredWidth: 160
            Text {
                width: parent.width
                elide: Text.ElideRight
                color: Theme.text
                font.bold: true
                font.pixelSize: Theme.titleSize
                text: header.page ? header.page.title : ""
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Caption {
                width: parent.width
                visible: text !== ""
                text: header.page ? header.page.subtitle : ""
            }
        }
        TextField {
            id: search

            Layout.fillWidth: true
            Layout.minimumWidth: 90
            Layout.preferredWidth: 140
            Layout.maximumWidth: 320
            implicitHeight: Theme.controlHeight
            visible: header.page !== null && header.page.isSearchable
            placeholderText: "Search (Ctrl+F)"
            placeholderTextColor: Theme.textSecondary
            selectByMouse: true
            Accessible.name: "Search on this page"
            text: View.search
            onTextEdited: View.search = text
            Keys.onEscapePressed: View.search = ""
        }
        Choice {
            Layout.preferredWidth: 96
            label: "Text language"
            model: Ui.languages.length > 0 ? Ui.languages.concat(TextCatalog.pseudoLanguages) : [Ui.language]
            labelOf: name => TextCatalog.label(name)
            listWidth: 200
            value: Ui.language
            onChosen: value => Ui.language = value
        }
        Choice {
            Layout.preferredWidth: 136
            label: "Icon context"
            model: IconCatalog.contexts.length > 0 ? IconCatalog.contexts : [View.context]
            value: View.context
            onChosen: value => View.context = value
        }
        Choice {
            Layout.preferredWidth: 116
            label: "Display size in pixels"
            model: ["real screen"].concat(DimensionCatalog.displays)
            value: View.display === "" ? "real screen" : View.display
            onChosen: value => View.display = value === "real screen" ? "" : value
        }
    }
}
