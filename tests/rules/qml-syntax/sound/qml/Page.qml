import QtQuick 2.15
import Tarnis 1.0

Text {
    width: 1
}
