import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnis.Gallery 1.0

// A list that creates only the visible rows and keeps its scroll position when the rows change.
ListView {
    id: view

    property var rows

    onRowsChanged: {
        const place = contentY
        model = rows
        forceLayout()
        contentY = Math.max(originY, Math.min(place, originY + contentHeight - height))
    }
    activeFocusOnTab: true
    clip: true
    highlight: Highlight {}
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List
    Accessible.name: View.page
    Keys.onReturnPressed: if (currentItem) currentItem.clicked()
    Keys.onSpacePressed: if (currentItem) currentItem.clicked()
    ScrollBar.vertical: ScrollHandle {}
}
