import QtQuick 2.15
import Tarnis 1.0
import "names.js" as Names
import "theme.mjs" as Theme

Item {
    id: page

    readonly property var table: ({ warm: "Heatingg", cold: { key: "Accentt" } }) // unknown Day/Heatingg // unknown Day/Accentt
    function color(key = "Texxt", group = "Day") { // unknown Day/Texxt
        return Ui.colors.getColor(group, key)
    }
    function spread(...all) {
        return page.color(...all)
    }

    function direct(...all) {
        return Ui.colors.getColor(...all)
    }
    function pair(group, key) {
        return [group, key]
    }

    Rectangle { color: page.color() }
    Rectangle { color: page.color(page.table.warm) }
    Rectangle { color: page.color(page.table["cold"].key) }
    Rectangle { color: page.spread("Sur" + "fac") } // unknown Day/Surfac
    Rectangle { color: page.direct(...["Nigth", "Al" + "arm"]) } // unknown Nigth/Alarm
    Rectangle { color: Ui.colors.getColor(...page.pair("Day", "Text")) }
    Rectangle { color: Ui.colors.getColor(...page.pair("Day", "Surfaace")) } // unknown Day/Surfaace
    Rectangle { color: { let key = "Text"; key = "Tex"; return key !== Names.either(1) ? Ui.colors.getColor("Day", key) : "" } } // unknown Day/Tex
    Rectangle { color: page.color(Names.accent) }
    Rectangle { color: page.color(Names.pick(1)) }
    Rectangle { color: Theme.dark("Focusss") } // unknown Night/Focusss
    Rectangle { color: Theme.names.alarm }
    Rectangle {
        color: {
            const { warm: renamed, missing = "Scrimmm" } = page.table // unknown Day/Scrimmm
            const [first, second] = ["Accent", "Acceent"] // unknown Day/Acceent
            var all = [renamed, missing, first, second]
            return all.map(name => page.color(name)).join("")
        }
    }
    Rectangle {
        color: {
            const states = [{ id: 1, key: "Text" }, { id: 2, key: "Textt" }] // unknown Day/Textt
            const found = states.find(state => state.id === page.width)
            return page.color(found.key)
        }
    }
    Rectangle {
        color: {
            let last
            Object.keys({ Outline: 1, Outlinne: 2 }).forEach(key => { last = Ui.colors.getColor("Day", key) }) // unknown Day/Outlinne
            for (const value of Object.values({ a: "Alarm", b: "Allarm" })) // unknown Day/Allarm
                last = Ui.colors.getColor("Day", value)
            return last
        }
    }
    Rectangle {
        color: {
            const outer = "Divvider" // unknown Day/Divvider
            const closure = () => Ui.colors.getColor("Day", outer)
            return closure()
        }
    }
}
