pragma Singleton

import QtQuick 2.15
import Tarnis 1.0

QtObject {
    id: theme

    property string context: "defaultContext"
    property bool isHighContrast: false
    readonly property string group: (context === "nightMode" ? "Night" : "Day") + (isHighContrast ? "HighContrast" : "")
    readonly property color background: Ui.colors.getColor(group, "Background")
    readonly property color surface: pick("Surface")
    readonly property color raised: pick("SurfaceRaised")
    readonly property color text: pick("Text")
    readonly property color faint: pick("TextSecondary")
    readonly property QtObject accents: QtObject {
        readonly property string calm: "Accent"
        readonly property string warm: "Heating"
        readonly property string cold: "Cooling"
        readonly property string loud: "Alarm"
    }

    function pick(key) {
        return Ui.colors.getColor(theme.group, key);
    }
}
