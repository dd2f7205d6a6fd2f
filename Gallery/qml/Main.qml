import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import Tarnis 1.0
import "blocks" as Blocks

ApplicationWindow {
    id: window

    readonly property var tabs: View.pages.filter(name => !name.startsWith("Device") || name === "Device")

    title: "Tarnis gallery"
    width: View.display === "" ? Math.min(Screen.width, 1280) : View.displaySize.width
    height: View.display === "" ? Math.min(Screen.height, 800 + bar.height) : View.displaySize.height + bar.height
    visible: true
    color: "white"

    header: ToolBar {
        id: bar

        height: column.implicitHeight + 6
        background: Rectangle {
            color: "#e4e8ec"
        }

        Column {
            id: column

            width: parent.width
            spacing: 4

            TabBar {
                width: parent.width
                height: 34
                currentIndex: window.tabs.indexOf(View.page.startsWith("Device") ? "Device" : View.page)
                // The arrow keys change the index.
                onCurrentIndexChanged: if (activeFocus) View.page = window.tabs[currentIndex]
                Repeater {
                    model: window.tabs
                    TabButton {
                        height: 34
                        font.pixelSize: 13
                        text: modelData
                        onClicked: View.page = modelData
                    }
                }
            }
            RowLayout {
                x: 8
                width: parent.width - 16
                spacing: 8
                TextField {
                    Layout.fillWidth: true
                    implicitHeight: 32
                    font.pixelSize: 13
                    enabled: View.page !== "Device" && View.page !== "DeviceDialog" // they contain no list
                    placeholderText: enabled ? "Search" : "Nothing to search on this page"
                    Accessible.name: "Search on this page"
                    text: View.search
                    onTextEdited: View.search = text
                }
                Blocks.Choice {
                    Layout.preferredWidth: 110
                    label: "Text language"
                    model: Ui.languages.length > 0 ? Ui.languages : [Ui.language]
                    value: Ui.language
                    onChosen: value => Ui.language = value
                }
                Blocks.Choice {
                    Layout.preferredWidth: 150
                    label: "Icon context"
                    model: Catalog.contexts.length > 0 ? Catalog.contexts : [View.context]
                    value: View.context
                    onChosen: value => View.context = value
                }
                Blocks.Choice {
                    Layout.preferredWidth: 130
                    label: "Display size"
                    model: ["real screen"].concat(Catalog.displays)
                    value: View.display === "" ? "real screen" : View.display
                    onChosen: value => View.display = value === "real screen" ? "" : value
                }
            }
        }
    }

    Rectangle {
        id: problem

        width: parent.width
        height: visible ? Math.max(retry.height, problemText.height) + 12 : 0
        visible: Ui.problem !== ""
        color: "#fde7e7"

        Text {
            id: problemText

            x: 12
            y: 6
            width: parent.width - retry.width - 36
            height: Math.min(implicitHeight, 96)
            clip: true
            color: "#8c1d18"
            font.pixelSize: 13
            text: Ui.problem
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
        }
        Button {
            id: retry

            anchors.right: parent.right
            anchors.rightMargin: 12
            y: 6
            height: 32
            text: "Retry"
            onClicked: View.reload()
        }
    }

    Loader {
        y: problem.height
        width: parent.width
        height: parent.height - y
        source: (View.page.startsWith("Device") ? "Device" : View.page) + ".qml"
    }

    Rectangle {
        id: toast

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        width: toastText.implicitWidth + 24
        height: 32
        radius: 16
        visible: toastTime.running
        color: "#203040"

        Text {
            id: toastText

            anchors.centerIn: parent
            color: "white"
            font.pixelSize: 13
            textFormat: Text.PlainText
        }
        Timer {
            id: toastTime

            interval: 2000
        }
        Connections {
            target: View
            function onCopied(text) {
                toastText.text = "Copied: " + text
                toastTime.restart()
            }
        }
    }
}
