import QtQuick 2.15
import Tarnis 1.0

Item {
    id: page

    property string plain: "Acent" // unknown Day/Acent
    readonly property string constant: "Bakground" // unknown Day/Bakground
    property string later
    property alias other: inner.key
    property QtObject style: QtObject {
        property string key: "Scrimm" // unknown Day/Scrimm
    }
    property bool isNight
    property string chosen: {
        switch (level) {
        case 1: return "Heatin" // unknown Day/Heatin
        default: return "Accent"
        }
    }
    property string looped: {
        let result = ""
        for (const name of ["Text", "Txet"]) // unknown Day/Txet
            result = name
        return result
    }
    property int level
    other: "Alarmm" // unknown Day/Alarmm

    Component.onCompleted: later = "Outlin" // unknown Day/Outlin

    function color(key) {
        return Ui.colors.getColor("Day", key)
    }

    Rectangle { color: Ui.colors.getColor("Day", page.plain) }
    Rectangle { color: page.color(page.constant) }
    Rectangle { color: page.color(later) }
    Rectangle { color: page.color(inner.key) }
    Rectangle { color: page.color(page.style.key) }
    Rectangle { color: page.color(page.chosen) }
    Rectangle { color: page.color(looped) }
    Rectangle { color: page.color(isNight ? "Focus" : "Focuss") } // unknown Day/Focuss
    Rectangle { color: page.color(level > 1 && "Dividerr") } // unknown Day/Dividerr
    QtObject { id: inner; property string key }
    Rectangle { id: changed; property string key: "Accent"; color: page.color(key) }
    states: State {
        PropertyChanges { target: changed; key: "Acccent" } // unknown Day/Acccent
    }
}
