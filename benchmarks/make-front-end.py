#!/usr/bin/env python3
"""Writes a front end with many QML files and lookups, to measure tarnis-resource-check --qml.

usage: make-front-end.py DIRECTORY [FILES] [LOOKUPS]
"""
import os
import sys

directory = sys.argv[1]
files = int(sys.argv[2]) if len(sys.argv) > 2 else 500
lookups = int(sys.argv[3]) if len(sys.argv) > 3 else 20000
colors = ["Accent", "Text", "Surface", "Outline", "Alarm", "Focus", "Heating", "Humidity"]
icons = ["home", "back", "next", "wifi", "alarm", "plus", "minus", "lock"]


def write(name, text):
    with open(os.path.join(directory, name), "w", encoding="utf-8") as file:
        file.write("import QtQuick 2.15\nimport Tarnis 1.0\n\n" + text)


os.makedirs(directory, exist_ok=True)
write("Icon.qml", "Image {\n    property string alias\n    source: Ui.icons.getIconPathAsFileUrl(alias)\n}\n")
write("Swatch.qml", 'Rectangle {\n    property string key: "Text"\n'
      '    color: Ui.colors.getColor(isNight ? "Night" : "Day", key)\n    property bool isNight\n}\n')
pages = files - 3  # and the three components
for page in range(pages):
    count = lookups * (page + 1) // pages - lookups * page // pages
    lines = ["Item {", "    id: page", "    readonly property var dims: Ui.dimensions.uiElementDimensions",
             "    function color(key) { return Ui.colors.getColor(\"Day\", key) }",
             "    readonly property var rows: ["]
    lines += [f'        {{ alias: "{icons[index % 8]}", key: "{colors[index % 8]}" }},' for index in range(count // 10)]
    lines += ["    ]", "    Repeater {", "        model: page.rows",
              "        Swatch { key: modelData.key; Icon { alias: modelData.alias } }", "    }"]
    for index in range(count - count // 10):
        name = (page + index) % 8
        lines.append([f'    Icon {{ alias: "{icons[name]}" }}',
                      f'    Swatch {{ key: "{colors[name]}" }}',
                      f'    Rectangle {{ color: page.color("{colors[name]}") }}',
                      '    Item { width: page.dims["Tile/width"] }'][index % 4])
    write(f"Page{page}.qml", "\n".join(lines) + "\n}\n")
write("Main.qml", "Item {\n" + "".join(f"    Page{page} {{}}\n" for page in range(pages)) + "}\n")
