import QtQuick 2.15
import Tarnis 1.0

// Everything here is right, although similar code is not.
Item {
    id: page

    property string none: isNone ? "none" : "Text"
    property bool isNone
    property string key: "Text"
    property var never
    readonly property string no: "no"
    readonly property var pair: ["Night", "Sur" + "face"]
    function all(...names) { return Ui.colors.getColor(...names) }
    property var translatedTexts: ({ mine: "x" })
    readonly property string mine: translatedTexts["mine"]
    function show(item) { return item.getColor("x", "y") }
    function first() { const name = "Accent"; return Ui.colors.getColor("Day", name) }
    function second() { const name = "wrong"; return name }
    function guarded(name) {
        if (!name)
            return "black"
        if (name === "default")
            return "white"
        return Ui.colors.getColor("Day", name)
    }
    function chosen(page) { return page.translatedTexts["y"] }
    property var last: { let node = second; while (node.next) node = node.next; return node }
    function pick(a, b) { return page.width > 5 ? a : b }

    Rectangle { color: page.guarded("") }
    Rectangle { color: page.guarded("default") }
    Rectangle { color: page.guarded(none === "none" ? "Text" : "Accent") }
    Rectangle { color: page.none !== "none" ? Ui.colors.getColor("Day", page.none) : "black" }
    Rectangle { color: "none" !== page.none ? Ui.colors.getColor("Day", page.none) : "black" }
    Rectangle { color: page.none !== page.no + "ne" ? Ui.colors.getColor("Day", page.none) : "black" }
    Rectangle {
        color: {
            const nothing = "none"
            switch (page.none) {
            case nothing:
                return "black"
            default:
                return Ui.colors.getColor("Day", page.none)
            }
        }
    }
    Rectangle { color: page.never !== page.key ? Ui.colors.getColor("Day", page.key) : "black" }
    Rectangle { color: page.all("Day", "Accent") + page.all(...page.pair) }
    Rectangle { color: Ui.colors.getColor("Day", page.pick("Text", "Accent")) }
    Image { source: Ui.icons.getIconPath(page.pick("home", "back")) }
    Entry { id: entry; value: "home" }
    Entry { value: "Hello"; Text { text: parent.value } }
    Image { source: Ui.icons.getIconPath(entry.value) }
    Text { text: page.second() + page.chosen({ translatedTexts: {} }) + page.show({ getColor: () => 1 }) }
    Repeater {
        model: [{ group: "Day", key: "Text" }, { group: "Night", key: "Accent" }]
        Rectangle { color: Ui.colors.getColor(modelData.group, modelData.key) }
    }
}
