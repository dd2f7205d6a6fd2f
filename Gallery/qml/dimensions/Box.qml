import QtQuick 2.15
import "../theme"

// A dimension drawn to scale, never cut off: a box if width and height are known, otherwise a bar.
Item {
    id: box

    property size size
    readonly property int thickness: Math.min(24, width, height) // of a bar; it has no meaning
    readonly property int divisor: Math.max(1, Math.ceil(size.width / width), Math.ceil(size.height / height))
    readonly property string scaleText: divisor === 1 ? "at its real size (1:1)" : "at a scale of 1:" + divisor
    readonly property string text: size.width > 0 && size.height > 0
        ? size.width + " × " + size.height + " px" : Math.max(size.width, size.height) + " px"

    Accessible.role: Accessible.Graphic
    Accessible.name: text + ", drawn " + scaleText

    Rectangle {
        width: box.size.width > 0 ? box.size.width / box.divisor : box.thickness
        height: box.size.height > 0 ? box.size.height / box.divisor : box.thickness
        visible: box.size.width > 0 || box.size.height > 0
        color: Theme.accent
    }
}
