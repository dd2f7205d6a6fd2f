pragma Singleton

import QtQuick 2.15
import Tarnis 1.0

QtObject {
    readonly property var texts: Ui.texts.translatedTexts
    readonly property string ok: texts["text://Button/Ok"]
    readonly property string save: texts["text://Button/Save"]
    readonly property string on: texts["text://Common/On"]
    readonly property string off: texts["text://Common/Off"]

    function mode(name) {
        return texts["text://Mode/" + name];
    }
}
