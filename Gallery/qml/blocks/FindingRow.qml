import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis.Gallery 1.0
import "../theme"

// A fault of a file, or the name of the file above its faults. A click opens the file.
AbstractButton {
    id: row

    property var finding
    readonly property bool isHeading: finding.isHeading === true
    readonly property string place: isHeading || finding.line === 0 ? "" : finding.column === 0
        ? "line " + finding.line : finding.line + ":" + finding.column

    text: isHeading ? finding.file : finding.severity + " " + finding.file + " " + place + " " + finding.message
    focusPolicy: Qt.NoFocus
    leftPadding: Theme.medium
    rightPadding: Theme.large
    topPadding: isHeading ? Theme.medium : Theme.tiny
    bottomPadding: Theme.tiny
    Accessible.description: "Opens the file"
    onClicked: Findings.open(finding.path, finding.line || 0, finding.column || 0)

    background: Rectangle {
        color: row.down ? Theme.pressed : row.hovered ? Theme.surface : "transparent"

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: row.isHeading ? 1 : 0
            color: Theme.line
        }
    }
    contentItem: Loader {
        sourceComponent: row.isHeading ? heading : fault
    }

    Component {
        id: heading

        Item {
            implicitHeight: name.height
            Title {
                id: name

                width: Math.min(implicitWidth, parent.width - count.width - Theme.small)
                elide: Text.ElideMiddle
                text: row.finding.file
            }
            Caption {
                id: count

                anchors.right: parent.right
                anchors.verticalCenter: name.verticalCenter
                text: row.finding.count + (row.finding.count === 1 ? " finding" : " findings")
            }
        }
    }
    Component {
        id: fault

        Row {
            spacing: Theme.small
            Item {
                width: 56
                height: mark.height
                Mark {
                    id: mark

                    isWarning: row.finding.severity === "warning"
                    text: row.finding.severity
                }
            }
            Caption {
                id: place

                width: 64
                topPadding: 2
                text: row.place
            }
            Column {
                width: parent.width - 56 - 64 - 2 * Theme.small
                Text {
                    width: parent.width
                    color: Theme.text
                    font.pixelSize: Theme.bodySize
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    text: row.finding.message
                }
                Caption {
                    width: parent.width
                    text: row.finding.rule
                }
            }
        }
    }
}
