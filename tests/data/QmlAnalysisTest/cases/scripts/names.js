.pragma library
.import "more.js" as More

var accent = "Acccentt" // unknown Day/Acccentt

function either(index) {
    return index > 3 ? "Text" : "Tex"
}

function pick(index) {
    if (index > 3)
        return More.other
    return ["Text", "Teext"][index] // unknown Day/Teext
}
