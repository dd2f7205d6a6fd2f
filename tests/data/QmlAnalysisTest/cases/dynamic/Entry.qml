import QtQuick 2.15
import Tarnis 1.0
Item { property string key; Rectangle { color: Ui.colors.getColor("Day", parent.key) } }
