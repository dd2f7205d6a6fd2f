import QtQuick 2.15
import Tarnis.Gallery 1.0
import "blocks" as Blocks
import "theme"

Blocks.Page {
    id: page

    property string severity: "all severities"
    readonly property string severityName: severity === "errors" ? "error" : severity === "warnings" ? "warning" : ""

    function counted(number, what) {
        return number + " " + what + (number === 1 ? "" : "s")
    }

    Component.onCompleted: Findings.start()
    title: "Findings"
    subtitle: Findings.revision > 0 ? counted(Findings.errors, "error") + ", " + counted(Findings.warnings, "warning") : ""
    isEmpty: list.count === 0
    emptyText: Findings.revision === 0 ? "Checking the files." : Findings.errors + Findings.warnings === 0
        ? "No findings." : "No findings of this severity."
    controls: [
        Blocks.Caption {
            height: Theme.controlHeight
            verticalAlignment: Text.AlignVCenter
            text: "Show"
        },
        Blocks.Choice {
            width: 140
            label: "Severity of the findings"
            model: ["all severities", "errors", "warnings"]
            value: page.severity
            onChosen: value => page.severity = value
        }
    ]

    Blocks.Banner {
        id: banner

        width: parent.width
        text: Findings.problem
        action: "Check again"
        onTriggered: View.reload()
    }
    Blocks.Rows {
        id: list

        anchors.fill: parent
        anchors.topMargin: banner.height
        rows: Findings.revision > 0 ? Findings.rows(page.severityName, View.search) : []
        delegate: Blocks.FindingRow {
            width: list.width
            finding: modelData
        }
    }
}
