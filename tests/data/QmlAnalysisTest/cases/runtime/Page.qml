import QtQuick 2.15
import Tarnis 1.0

Item {
    property var names
    property var a: Ui.colors.getColor("Day", names.current) // undeterminable
    property var b: Ui.icons.getIconPath(backend.icon) // undeterminable
    // tarnis: names text://Room/*
    property var c: Ui.texts.translatedTexts["text://Room/" + backend.room]
    property var d: Ui.texts.translatedTexts["text://Rom/" + backend.room] // undeterminable // unknown text://Rom/*
    property var e: Ui.colors.getColor("Day", backend.isHot ? "Heating" : "Humidity")
}
