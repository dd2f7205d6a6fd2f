import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "theme"

ApplicationWindow {
    id: window

    // Each has the search of its own; the further pages of the device are parts of the first one.
    readonly property var tabs: View.pages.filter(name => !name.startsWith("Device") || name === "Device")
    readonly property string tab: View.page.startsWith("Device") ? "Device" : View.page
    // What surrounds the device.
    readonly property size chrome: Qt.size(navigation.width, header.height + Theme.controlHeight + Theme.large)

    title: "Tarnis gallery – " + tab
    width: View.windowSize.width > 0 ? View.windowSize.width : Math.min(Screen.width, 1280)
    height: View.windowSize.height > 0 ? View.windowSize.height : Math.min(Screen.height, 800)
    minimumWidth: 480
    minimumHeight: 320
    visible: true
    color: Theme.window
    font.pixelSize: Theme.bodySize
    palette {
        base: Theme.window
        brightText: Theme.window
        button: Theme.surface
        buttonText: Theme.text
        dark: Theme.textSecondary
        highlight: Theme.accent
        highlightedText: Theme.textOnAccent
        light: Theme.surface
        mid: Theme.line
        midlight: Theme.pressed
        text: Theme.text
        toolTipBase: Theme.bar
        toolTipText: Theme.text
        window: Theme.window
        windowText: Theme.text
    }

    Blocks.Navigation {
        id: navigation

        height: parent.height
        tabs: window.tabs
        tab: window.tab
    }
    Blocks.Header {
        id: header

        anchors.left: navigation.right
        anchors.right: parent.right
        page: pageLoader.item
    }
    Blocks.Banner {
        id: banner

        anchors.left: navigation.right
        anchors.right: parent.right
        anchors.top: header.bottom
        text: Ui.problem
        onTriggered: View.reload()
    }
    Loader {
        id: pageLoader

        anchors.left: navigation.right
        anchors.right: parent.right
        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        source: window.tab + ".qml"
    }
    Blocks.Toast {
        anchors.horizontalCenter: pageLoader.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.large
    }

    Shortcut {
        sequence: StandardKey.Find
        onActivated: header.focusSearch()
    }
    Shortcut {
        sequence: StandardKey.Refresh
        onActivated: View.reload()
    }
    Instantiator {
        model: window.tabs
        delegate: Shortcut {
            sequence: "Ctrl+" + (index + 1)
            onActivated: View.page = modelData
        }
    }
}
