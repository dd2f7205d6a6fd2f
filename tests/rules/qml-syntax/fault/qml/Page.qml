import QtQuick 2.15
import Tarnis 1.0

Text {
    // expect 12 qml-syntax
    width: =
}
