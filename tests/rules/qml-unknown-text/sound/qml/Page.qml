import QtQuick 2.15
import Tarnis 1.0

Text {
    text: Ui.texts.translatedTexts["text://Button/Ok"]
}
