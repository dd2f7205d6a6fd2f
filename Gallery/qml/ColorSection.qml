import QtQuick 2.15
import Tarnis 1.0

Section {
    id: section

    title: "Colours"

    Repeater {
        model: Names.colors
        Column {
            property string group: modelData.group

            width: section.width
            spacing: 6

            Caption {
                font.bold: true
                text: group
            }
            Flow {
                width: parent.width
                spacing: 8
                Repeater {
                    model: modelData.keys
                    Column {
                        width: 95
                        Rectangle {
                            width: parent.width
                            height: 36
                            border.color: "#c0c0c0"
                            color: Ui.colors.getColor(group, modelData)
                        }
                        Caption {
                            width: parent.width
                            text: modelData
                        }
                        Caption {
                            width: parent.width
                            font.family: "monospace"
                            text: Ui.colors.getColor(group, modelData)
                        }
                    }
                }
            }
        }
    }
}
