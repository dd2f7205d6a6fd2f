#pragma once

#include "tests/support/TestProcess.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace Tests
{

/// A front end in a directory of its own, which a test may change.
class FrontEndFiles
{
public:
    FrontEndFiles()
    {
        QDir(path).mkdir("parts");
        write("parts/Part.qml", "import QtQuick 2.15\nText { text: 'part 1' }\n");
        write("script.js", "var text = 'script 1'\n");
        write("Window.qml", page("ApplicationWindow"));
        write("Item.qml", page("Control"));
        paint("blue");
    }

    void write(const QString& name, const QString& content) const { writeFile(path + '/' + name, content.toUtf8()); }

    /// Saves the picture in one color.
    void paint(const QString& color) const
    {
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(QColor(color));
        QVERIFY(picture.save(path + "/picture.png"));
    }

    /// Runs commands in the directory. `save FILE` writes a file as some editors do: a new one takes its place.
    void shell(const QString& commands) const
    {
        const QString save = "save() { cat > $1.new; mv $1.new $1; }; ";
        QCOMPARE(run("sh", {"-ec", "cd '" + path + "'; " + save + commands}).exitStatus, 0);
    }

private:
    const QTemporaryDir directory;

    static QString page(const QString& root)
    {
        return "import QtQuick 2.15\nimport QtQuick.Controls 2.15\nimport Tarnis 1.0\nimport 'parts'\n"
               "import 'script.js' as Script\n"
            + root + " {\n" + R"(
    id: root
    property string context
    property int count: 0
    width: 1600
    height: 1200
    Component.onCompleted: console.log("the front end is there")
    Flickable {
        id: list
        width: 1600; height: 380; contentHeight: 4000
        Column {
            Part {}
            Text { text: Script.text }
            Text { text: "clicked " + root.count }
            Text { text: "context " + root.context }
            Image { source: "picture.png" }
        }
    }
    Button { y: 400; width: 400; height: 100; text: "Count"; onClicked: ++root.count }
    Switch { id: option; x: 400; y: 400; width: 400; height: 100 }
    TextField { id: field; y: 500; width: 400; height: 100 }
    Button { x: 800; y: 400; width: 400; height: 100; text: "Ask"; onClicked: question.open() }
    Popup { id: question; x: 800; y: 0; focus: true; modal: true; Text { text: "the question" } }
    Loader { active: option.checked; sourceComponent: Switch { objectName: "inner"; x: 400; y: 500 } }
}
)";
    }

public:
    const QString path = QFileInfo(directory.path()).canonicalFilePath();
};

} // namespace Tests
