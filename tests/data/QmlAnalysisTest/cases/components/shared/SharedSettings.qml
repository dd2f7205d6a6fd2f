pragma Singleton
import QtQuick 2.15

QtObject {
    property string group: night ? "Nightt" : "Day" // unknown Nightt/Text
    property bool night
}
