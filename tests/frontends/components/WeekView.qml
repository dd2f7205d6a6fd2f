import QtQuick 2.15
import Tarnis 1.0

Item {
    id: week

    required property string theme
    required property string context
    readonly property var dims: Ui.dimensions.uiElementDimensions
    property var days: ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"]
    property list<QtObject> bars: [
        Bar { tone: "Heating"; from: 6 },
        Bar { tone: "LightOn"; from: 12 },
        Bar { tone: "Cooling"; from: 18 }
    ]

    component Bar: QtObject {
        property string tone: "Outline"
        property int from: 0
    }

    Column {
        spacing: week.dims["Spacing/tiny"]

        Caption {
            theme: week.theme
            family: "Heading"
            role: "Dialog"
            text: Ui.texts.translatedTexts["text://Schedule/NextSwitch"].arg("6:00")
        }
        Repeater {
            model: week.days
            delegate: Row {
                id: day

                required property string modelData
                required property int index

                height: week.dims["Schedule/rowHeight"]

                Caption {
                    width: week.dims["Schedule/dayLabelWidth"]
                    theme: week.theme
                    role: "Caption"
                    tint: day.index > 4 ? "TextDisabled" : "Text"
                    text: Ui.texts.translatedTexts["text://Weekday/" + day.modelData]
                }
                Repeater {
                    model: week.bars
                    delegate: Rectangle {
                        required property var modelData

                        width: week.dims["Schedule/hourWidth"]
                        height: week.dims["Schedule/barHeight"]
                        color: Ui.colors.getColor(week.theme, modelData.tone)
                    }
                }
            }
        }
    }
    Icon {
        anchors.right: parent.right
        alias: "calendar"
        context: week.context
        dimension: "Icon/large"
    }
}
