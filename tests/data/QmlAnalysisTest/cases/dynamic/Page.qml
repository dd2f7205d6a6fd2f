import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis 1.0
import "tools.js" as Tools

Item {
    id: page

    property QtObject backend
    property Item dynamic
    property var style: QtObject { property QtObject inner: QtObject { property string key } }
    style.inner.key: "Acc1" // unknown Day/Acc1
    property list<QtObject> entries: [
        Entry { key: "Acc2" }, // unknown Day/Acc2
        Entry { key: "Text" }
    ]
    property string bound
    signal picked(string icon, int number)

    function method(key) { return this.other(key) }
    function other(key) { return Ui.colors.getColor("Day", key) }

    onPicked: icon1.alias = icon
    Component.onCompleted: {
        const made = tile.createObject(page, { alias: "bad1" }) // unknown bad1
        made.alias = "bad2" // unknown bad2
        page.picked("bad3", 1) // unknown bad3
        stack.push(tile, { alias: "bad4" }) // unknown bad4
        loader.setSource("Entry.qml", { key: "Acc3" }) // unknown Day/Acc3
        bound = Qt.binding(() => "Acc4") // unknown Day/Acc4
        timer.triggered.connect(() => { page.other("Acc5") }) // unknown Day/Acc5
    }
    Icon { id: icon1 }
    Component { id: tile; Icon {} }
    StackView { id: stack }
    Loader { id: loader }
    Timer { id: timer }
    Connections {
        target: page
        function onPicked(icon, number) { icon2.alias = icon + number; }
    }
    Icon { id: icon2 }
    Rectangle { color: page.method(page.style.inner.key) }
    Rectangle { color: page.method(page.entries[0].key) }
    Rectangle { color: page.method(page.bound) }
    Rectangle { id: r; property string key; color: page.method(key) }
    Binding { target: r; property: "key"; value: "Acc6" } // unknown Day/Acc6
    Rectangle {
        color: {
            const { a, b: rest } = { a: "Acc7", b: "Acc8" } // unknown Day/Acc7 // unknown Day/Acc8
            const joined = [["x", "Acc9"]].map(([, second]) => second) // unknown Day/Acc9
            for (const [key, value] of Object.entries({ Acc10: "Acc11" })) // unknown Day/Acc10 // unknown Day/Acc11
                page.method(key) + page.method(value)
            const copy = Object.assign({}, { c: "Acc12" }) // unknown Day/Acc12
            const total = ["Acc13"].reduce((sum, one) => sum + page.method(one), "") // unknown Day/Acc13
            page.method(a) + page.method(rest) + page.method(copy.c)
            joined.forEach(page.method)
            const tool = new Tools.Tool("Acc14") // unknown Day/Acc14
            tool.show()
            Tools.apply.call(null, "Acc15") // unknown Day/Acc15
            var chosen; if (page.width > 3) chosen = "Acc16"; else chosen = "Text" // unknown Day/Acc16
            let i = 0; do { page.method(chosen) } while (i++ < 3)
            try { throw new Error("x") } catch (e) { page.method("Acc17") } // unknown Day/Acc17
            return total
        }
    }
    Text { text: Ui.texts.translatedTexts["text://Room/" + (page.width > 5 ? "Hallway" : "Hallwai")] } // unknown text://Room/Hallwai
    Text { text: Ui.texts.translatedTexts.plain } // unknown plain
    ListView {
        model: ListModel { ListElement { name: "bad5" } } // unknown bad5
        delegate: Component { Icon { required property string name; alias: name } }
    }
    Repeater {
        model: [{ key: "Acc18" }].concat([{ key: "Acc19" }]).filter(x => x.key) // unknown Day/Acc18 // unknown Day/Acc19
        Rectangle {
            id: cell
            readonly property var entry: modelData
            Rectangle { color: page.method(cell.entry.key) }
        }
    }
    Rectangle { color: page.method(({ a: () => "Acc20" }).a()) } // unknown Day/Acc20
    Rectangle { color: page.method("Acc21 ".trim()) } // unknown Day/Acc21
    Rectangle { color: page.method("Text,Acc22".split(",")[1]) } // unknown Day/Acc22
    states: [State { name: "x"; PropertyChanges { target: r; key: "Acc23" } }] // unknown Day/Acc23
    Behavior on width { NumberAnimation { duration: 5 } }
    Menu { title: "x"; Repeater { model: 3; MenuItem { text: page.method("Acc24"); onTriggered: page.method("Acc25") } } } // unknown Day/Acc24 // unknown Day/Acc25
}
