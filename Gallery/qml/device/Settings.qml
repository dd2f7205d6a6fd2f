import QtQuick 2.15
import Tarnis 1.0
import "."

Item {
    id: settings

    readonly property var dims: Ui.dimensions.uiElementDimensions
    readonly property var texts: Ui.texts.translatedTexts
    readonly property var rows: [
        { alias: "language", title: texts["text://Settings/Language"], value: Ui.language },
        { alias: "brightness", title: texts["text://Settings/Brightness"], value: "80 %" },
        { alias: "home", title: texts["text://Settings/Display"], value: Theme.name },
        { alias: "wifi", title: texts["text://Settings/Wifi"], value: texts["text://Wifi/Connected"].arg("Studio 3") },
        { alias: "schedule", title: texts["text://Schedule/Title"],
          value: texts["text://Schedule/NextSwitch"].arg("17:30") },
        { alias: "calendar", title: texts["text://Schedule/HolidaysThisYear"], value: texts["text://Month/January"] }
    ]
    signal closed()

    Header {
        title: settings.texts["text://Settings/Title"]
        leftIcon: "back"
        onLeftClicked: settings.closed()
    }
    ListView {
        x: settings.dims["Page/padding"]
        y: settings.dims["Header/height"] + settings.dims["Screen/margin"]
        width: parent.width - 2 * x
        height: parent.height - y
        clip: true
        model: settings.rows
        delegate: SettingsRow {
            width: ListView.view.width
            alias: modelData.alias
            title: modelData.title
            value: modelData.value
        }
    }
}
