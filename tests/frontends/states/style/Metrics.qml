pragma Singleton

import QtQuick 2.15
import Tarnis 1.0

QtObject {
    readonly property var all: Ui.dimensions.uiElementDimensions
    readonly property int margin: all["Screen/margin"]
    readonly property int gap: all["Spacing/medium"]
    readonly property int line: all["Border/thin"]
    readonly property int touch: all["IconButton/size"]
    readonly property var gauge: ({
        diameter: all["Gauge/diameter"],
        stroke: all["Gauge/strokeWidth"],
        handle: all["Gauge/handleSize"]
    })

    function of(element, part) {
        return all[element + "/" + part];
    }
}
