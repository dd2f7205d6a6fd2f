import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import Tarnis.Gallery 1.0
import "../theme"

// What every page has: a title with units or counts, controls that wrap on a narrow window, and a sentence when there
// is nothing to show. The content is laid out below the controls.
FocusScope {
    id: page

    property string title
    property string subtitle
    property bool isSearchable: true
    property bool isEmpty: false
    property string emptyText: "Nothing to show."
    property alias controls: controlFlow.data
    default property alias content: contentItem.data

    Flow {
        id: controlFlow

        readonly property int margin: height > 0 ? Theme.small : 0 // not if every control is hidden

        x: Theme.medium
        y: margin
        width: parent.width - 2 * x
        height: implicitHeight
        spacing: Theme.small
    }
    Item {
        id: contentItem

        y: controlFlow.height + 2 * controlFlow.margin
        width: parent.width
        height: parent.height - y
    }
    Column {
        anchors.centerIn: contentItem
        width: Math.min(contentItem.width - 2 * Theme.large, 480)
        visible: page.isEmpty
        spacing: Theme.small

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.textSecondary
            font.pixelSize: Theme.bodySize
            textFormat: Text.PlainText
            text: !Ui.ready ? "Waiting for the resources."
                : View.search === "" || !page.isSearchable ? page.emptyText : "Nothing matches “" + View.search + "”."
        }
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            height: Theme.controlHeight
            visible: Ui.ready && View.search !== "" && page.isSearchable
            text: "Clear the search"
            onClicked: View.search = ""
        }
    }
}
