import QtQuick 2.15
import Tarnis 1.0

Section {
    id: section

    title: "Fonts"

    Repeater {
        model: Names.fonts
        Column {
            property string group: modelData.group
            property string family: Ui.fonts.getFontFamily(group)

            width: section.width
            spacing: 6

            Caption {
                font.bold: true
                text: group + ": " + family
            }
            Flow {
                width: parent.width
                spacing: 24
                Repeater {
                    model: modelData.keys
                    Column {
                        property real pointSize: Ui.fonts.getFontPointSize(group, modelData)

                        Text {
                            // QML refuses a point size of 0, with which the library answers a failed lookup.
                            font.pointSize: pointSize > 0 ? pointSize : 1
                            font.family: family
                            text: "21.5 °C 室温"
                            textFormat: Text.PlainText
                        }
                        Caption {
                            text: modelData + " " + pointSize.toFixed(2) + " pt"
                        }
                    }
                }
            }
        }
    }
}
