import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 36 qml-unknown-text
    text: Ui.texts.translatedTexts["text://Button/Okay"]
}
