pragma Singleton

import QtQuick 2.15
import Tarnis 1.0

// Colors come in two groups, for day and night; the icon context selects one of them.
QtObject {
    property string context: "defaultContext"
    readonly property string name: context === "nightMode" ? "Night" : "Day"
}
