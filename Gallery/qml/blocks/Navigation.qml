import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis.Gallery 1.0
import "../theme"

// The list of pages. The arrow keys and a click change the page.
Rectangle {
    id: navigation

    property var tabs
    property string tab

    width: 116
    color: Theme.bar

    ListView {
        id: list

        objectName: "navigation"
        anchors.fill: parent
        anchors.topMargin: Theme.small
        anchors.bottomMargin: themeButton.height + 2 * Theme.small
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        model: navigation.tabs
        currentIndex: navigation.tabs.indexOf(navigation.tab)
        Accessible.role: Accessible.PageTabList
        Accessible.name: "Pages"
        Keys.onUpPressed: View.page = navigation.tabs[Math.max(0, currentIndex - 1)]
        Keys.onDownPressed: View.page = navigation.tabs[Math.min(navigation.tabs.length - 1, currentIndex + 1)]
        delegate: AbstractButton {
            readonly property bool isCurrent: modelData === navigation.tab

            width: list.width
            height: Theme.rowHeight
            focusPolicy: Qt.NoFocus
            text: modelData
            Accessible.role: Accessible.PageTab
            ToolTip.text: "Ctrl+" + (index + 1)
            ToolTip.visible: hovered
            ToolTip.delay: 800
            onClicked: View.page = modelData
            background: Rectangle {
                color: parent.isCurrent ? Theme.window : parent.hovered ? Theme.pressed : "transparent"
                border.width: parent.isCurrent && list.activeFocus ? 2 : 0
                border.color: Theme.accent

                Rectangle {
                    width: 3
                    height: parent.height
                    visible: parent.parent.isCurrent
                    color: Theme.accent
                }
            }
            Mark {
                anchors.right: parent.right
                anchors.rightMargin: Theme.small
                anchors.verticalCenter: parent.verticalCenter
                text: modelData === "Findings" && Findings.errors > 0 ? Findings.errors : ""
            }
            contentItem: Text {
                leftPadding: Theme.small
                verticalAlignment: Text.AlignVCenter
                color: Theme.text
                font.bold: parent.isCurrent
                font.pixelSize: Theme.bodySize
                text: parent.text
            }
        }
    }
    Button {
        id: themeButton

        x: Theme.small
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.small
        width: parent.width - 2 * Theme.small
        height: Theme.controlHeight
        text: Theme.isDark ? "Light theme" : "Dark theme"
        onClicked: View.theme = Theme.isDark ? "light" : "dark"
    }
}
