import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "theme"

// A front end on the loaded resources: the sample, or a file of the user.
Blocks.Page {
    id: page

    readonly property bool hasTextColor: ColorCatalog.revision >= 0
        && ColorCatalog.entries("Day/Text").some(entry => entry.group === "Day" && entry.key === "Text")
    readonly property var missing: (hasTextColor ? [] : ["the color Day/Text"])
        .concat("Screen/width" in Ui.dimensions.uiElementDimensions ? [] : ["the dimension Screen/width"])
    readonly property bool isUsable: !Preview.isSample || missing.length === 0
    readonly property string message: !Ui.ready && Preview.isSample ? "Waiting for the resources."
        : !isUsable ? "This page shows the front end of the sample device. The loaded resources are not made for it: they "
            + "do not contain " + missing.join(" and ") + ". The other pages show all of them."
        : !Preview.isLoaded ? Preview.problem : ""
    readonly property int percent: Math.round(100 * frame.scaling)

    title: "Device"
    subtitle: Preview.name
    isSearchable: false
    controls: [
        Blocks.Caption {
            height: Theme.controlHeight
            rightPadding: Theme.small
            visible: text !== ""
            verticalAlignment: Text.AlignVCenter
            text: page.message !== "" ? ""
                : Preview.size.width + " x " + Preview.size.height + " px, shown at " + page.percent + " %"
        },
        Button {
            height: Theme.controlHeight
            checkable: true
            checked: true
            text: "Fit"
            ButtonGroup.group: scales
            Accessible.description: "Scales the front end down to fit into the window"
        },
        Button {
            id: fullSize

            height: Theme.controlHeight
            checkable: true
            text: "1:1"
            ButtonGroup.group: scales
            Accessible.description: "Shows each pixel of the front end as one pixel"
        },
        Button {
            height: Theme.controlHeight
            text: "Reset"
            Accessible.description: "Starts the front end again"
            onClicked: Preview.reset()
        }
    ]

    ButtonGroup {
        id: scales
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }
    Text {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.large, 640)
        visible: page.message !== ""
        color: Theme.text
        font.pixelSize: Theme.bodySize
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        text: page.message
    }
    Blocks.Banner {
        id: banner

        width: parent.width
        text: Preview.isLoaded && page.isUsable ? Preview.problem : ""
        onTriggered: Preview.reload()
    }
    Flickable {
        id: area

        anchors.fill: parent
        anchors.topMargin: banner.height
        visible: page.message === ""
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        contentWidth: Math.max(width, frame.width)
        contentHeight: Math.max(height, frame.height)
        ScrollBar.horizontal: Blocks.ScrollHandle {
            policy: area.contentWidth > area.width ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }
        ScrollBar.vertical: Blocks.ScrollHandle {
            policy: area.contentHeight > area.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }

        Rectangle {
            id: frame

            readonly property int thickness: 1
            readonly property real scaling: fullSize.checked ? 1
                : Math.min(1, (area.width - 2 * thickness) / Preview.size.width,
                           (area.height - 2 * thickness) / Preview.size.height)

            x: Math.max(0, Math.floor((area.width - width) / 2))
            y: Math.max(0, Math.floor((area.height - height) / 2))
            width: device.width + 2 * thickness
            height: device.height + 2 * thickness
            color: "transparent"
            border.width: thickness
            border.color: device.activeFocus ? Theme.accent : Theme.line

            FrontEndView {
                id: device

                x: frame.thickness
                y: frame.thickness
                width: Math.round(Preview.size.width * frame.scaling)
                height: Math.round(Preview.size.height * frame.scaling)
                preview: page.isUsable ? Preview : null
                Accessible.role: Accessible.Pane
                Accessible.name: "Front end"
            }
        }
    }
}
