import QtQuick 2.15
import Tarnis 1.0

// Members that objects lack, and properties that the host sets.
Item {
    id: root

    property string context: "day"
    property var labels: ({})
    readonly property var keys: ({ none: null, day: "Text", night: "Acc1" }) // unknown Day/Acc1
    readonly property var icons: ({ up: "home" })

    function tested(key) { return key in keys ? Ui.colors.getColor("Day", keys[key]) : ""; }
    function owned(key) {
        if (!keys.hasOwnProperty(key))
            return "";
        return Ui.colors.getColor("Day", keys[key]);
    }
    function typed(key) { return typeof keys[key] === "string" ? Ui.colors.getColor("Day", keys[key]) : ""; }
    function compared(key) { return keys[key] === undefined ? "" : Ui.colors.getColor("Day", keys[key]); }
    function found(key) {
        const value = keys[key];
        if (!value)
            return "";
        return Ui.colors.getColor("Day", value);
    }
    function chosen({ missing = "Text" }, key = "Text") {
        return Ui.colors.getColor("Day", missing) + Ui.colors.getColor("Day", key);
    }
    function guarded(key) { return tested(key) + owned(key) + typed(key) + compared(key) + found(key); }
    function open() {
        const filled = {};
        filled.color = "Acc2"; // unknown Day/Acc2
        const copied = Object.assign({}, filled);
        const passed = {};
        root.backend.fill(passed);
        return Ui.colors.getColor("Day", filled.color)
            + Ui.colors.getColor("Day", copied.color)
            + Ui.colors.getColor("Day", passed.color); // undeterminable
    }
    function capitalized(word) { return word.charAt(0).toUpperCase() + word.slice(1); }
    function letters(word) { return `${word[0].toUpperCase()}${word.substr(1)}`; }

    Rectangle { color: Ui.colors.getColor("Day", root.keys[root.context]) }
    Rectangle { color: Ui.colors.getColor("Day", root.keys.dya) } // unknown color is undefined
    Rectangle { color: Ui.colors.getColor("Day", root.keys["dya"]) } // unknown color is undefined
    Rectangle { color: Ui.colors.getColor("Day", root.keys.dya || "Text") + Ui.colors.getColor("Day", root.keys.dya ?? "Text") }
    Rectangle { color: root.guarded("day") + root.guarded("dya") + root.chosen(root.keys, root.keys.dya) + root.open() }
    Image { source: Ui.icons.getIconPath(root.icons["down"].toLowerCase()) } // unknown icon is undefined
    Text { text: Ui.texts.translatedTexts[root.labels.title] } // undeterminable
    Repeater {
        model: [{ title: "a" }, { title: "b", icon: "home" }]
        Image { source: Ui.icons.getIconPath(modelData.icon) }
    }
    Repeater {
        model: ["text", "acc3", "acc4"] // unknown Day/Acc3 // unknown Day/Acc4
        Rectangle { color: Ui.colors.getColor("Day", root.capitalized(modelData)) + Ui.colors.getColor("Day", root.letters(modelData)) }
    }
    Text {
        text: {
            let nothing = null;
            nothing.x = null, null.x, null[undefined] = null, nothing[null] = null;
            for (const item of null) {}
            for (const name in undefined) {}
            null(), undefined(), new null, root.tested(...null), root.owned(null, ...undefined);
            const list = [...null, null], { member } = null, [element] = undefined;
            null + null, `${null}`, null ? null : undefined, (null || undefined)(), null ?? null;
            list.push(null), list.map(null), list.join(null), "a".replace(null, undefined), root.found.call(null, null);
            Object.keys(null), Object.assign(null, undefined), Qt.binding(null), Array.from(null, null);
            switch (null) { case null: return undefined }
            throw null;
        }
    }
}
