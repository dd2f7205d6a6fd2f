import QtQuick 2.15
import Tarnis 1.0
Image { property string alias; source: Ui.icons.getIconPath(alias) } // undeterminable
