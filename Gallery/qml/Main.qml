import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0

// Everything that the service's resources hold, on one page.
ApplicationWindow {
    id: window

    property bool showsWholePage: false

    title: "Tarnis gallery"
    width: 1280
    height: showsWholePage ? page.height : 800
    visible: true
    color: "white"

    Flickable {
        anchors.fill: parent
        contentHeight: page.height
        focus: true
        Keys.onUpPressed: flick(0, 1500)
        Keys.onDownPressed: flick(0, -1500)
        ScrollBar.vertical: ScrollBar {
            policy: window.showsWholePage ? ScrollBar.AlwaysOff : ScrollBar.AsNeeded
            Accessible.name: "Scroll the page"
        }

        Column {
            id: page

            width: window.width
            padding: 24
            spacing: 24

            Section {
                title: Ui.problem
                visible: title !== ""
                Button {
                    text: "Ask again"
                    onClicked: Ui.reload()
                }
            }
            ColorSection {}
            FontSection {}
            IconSection {}
            DimensionSection {}
            TextSection {}
            Section {
                title: "Log"
                visible: Log.records.length > 0
                Repeater {
                    model: Log.records
                    Caption {
                        width: parent.width
                        text: modelData
                    }
                }
            }
        }
    }
}
