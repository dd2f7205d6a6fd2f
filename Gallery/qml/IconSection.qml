import QtQuick 2.15
import Tarnis 1.0

Section {
    title: "Icons"

    Flow {
        width: parent.width
        spacing: 8
        Repeater {
            model: Names.icons
            Column {
                property string alias: modelData.alias

                width: 116
                Row {
                    Repeater {
                        model: modelData.contexts
                        Rectangle {
                            width: 56
                            height: 56
                            color: modelData === "nightMode" ? "#202830" : "#f0f2f4"
                            Image {
                                anchors.centerIn: parent
                                sourceSize: Qt.size(48, 48)
                                source: Ui.icons.getIconPathAsFileUrl(alias, modelData)
                            }
                        }
                    }
                }
                Caption {
                    width: parent.width
                    text: parent.alias
                }
            }
        }
    }
}
