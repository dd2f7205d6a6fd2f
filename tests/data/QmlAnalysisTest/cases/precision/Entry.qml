import QtQuick 2.15

Item {
    property string value
}
