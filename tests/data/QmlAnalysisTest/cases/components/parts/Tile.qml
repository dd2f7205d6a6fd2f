import QtQuick 2.15
import Tarnis 1.0

Item {
    property string alias
    property string size: "Normal"
    Image { source: Ui.icons.getIconPathAsFileUrl(alias) }
    Text { font.pointSize: Ui.fonts.getFontPointSize("Text", size) }
}
