import QtQuick 2.15
import QtQuick.Controls 2.15

ScrollBar {
    policy: ScrollBar.AsNeeded
    Accessible.name: "Scroll"
}
