import QtQuick 2.15
import QtTest 1.2
import Tarnis 1.0

// An example: the test of a component that takes its look from the resources.
Item {
    Component {
        id: cancelButton

        Rectangle {
            property alias label: label

            width: label.implicitWidth + 2 * Ui.dimensions.uiElementDimensions["Button/padding"]
            height: Ui.dimensions.uiElementDimensions["Button/height"]
            color: Ui.colors.getColor("Day", "Accent")

            Text {
                id: label

                anchors.centerIn: parent
                font.family: Ui.fonts.getFontFamily("Text")
                font.pointSize: Ui.fonts.getFontPointSize("Text", "Button")
                text: Ui.texts.translatedTexts["text://Button/Cancel"]
            }
        }
    }

    TestCase {
        name: "Button"
        when: Ui.ready

        function test_labelFitsInEveryLanguage_data() {
            return Ui.languages.map(language => ({ tag: language, language: language }))
        }

        function test_labelFitsInEveryLanguage(data) {
            Ui.language = data.language
            const button = createTemporaryObject(cancelButton, this)
            verify(button.height >= 40, "too small for a finger")
            verify(button.label.text !== "")
            verify(button.label.implicitHeight > 0 && button.label.implicitHeight <= button.height)
            compare(button.color, "#0b7a75")
        }

        function test_iconsOfTheButtonExist() {
            verify(Ui.icons.getIconPath("home") !== "")
            compare(Ui.problem, "")
        }
    }
}
