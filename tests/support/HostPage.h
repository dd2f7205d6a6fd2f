#pragma once

#include "tests/support/TestProcess.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <cstring>
#include <sched.h>
#include <sys/mount.h>

namespace Tests
{

/// Members of a Page: one lookup of each handler, and all results in one text.
inline const QByteArray lookups =
    "property string color: Ui.colors.getColor('Day', 'Text')\n"
    "property string family: Ui.fonts.getFontFamily('Text')\n"
    "property double points: Ui.fonts.getFontPointSize('Text', 'Button')\n"
    "property var height: Ui.dimensions.uiElementDimensions['Button/height']\n"
    "property string icon: Ui.icons.getIconPathAsFileUrl('home') + Ui.icons.getIconPath('home', 'nightMode')\n"
    "property var text: Ui.texts.translatedTexts['text://Button/Cancel']\n"
    "property string all: [color, family, points, height, icon, text, Ui.ready].join()\n";

/// An engine with one object of these members, which may use `Ui`.
class Page
{
public:
    explicit Page(const QByteArray& members) { load(members); }

    /// Replaces the object.
    void load(const QByteArray& members)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQml 2.15\nimport Tarnis 1.0\nQtObject { " + members + " }", QUrl());
        object.reset(component.create());
        if (object == nullptr)
            qFatal("%s", qPrintable(component.errorString()));
    }

    QVariant operator[](const char* property) const { return object->property(property); }
    QVariant call(const char* function) const
    {
        QVariant result;
        QMetaObject::invokeMethod(object.get(), function, Q_RETURN_ARG(QVariant, result));
        return result;
    }

    QQmlEngine engine;

private:
    std::unique_ptr<QObject> object;
};

/// A copy of the sample resources, which a test may change.
class ResourceCopy
{
public:
    ResourceCopy()
    {
        if (run("cp", {"-r", RESOURCES, path}).exitStatus != 0)
            qFatal("cannot copy the resources");
    }

    /// Runs commands in the directory. `paint FILE` writes a color file with the text color #fe01fd.
    void shell(const QString& commands) const
    {
        const QString paint = "paint() { printf '[Day]\\nText=#fe01fd\\n' > $1; }; ";
        QCOMPARE(run("sh", {"-ec", "cd '" + path + "'; " + paint + commands}).exitStatus, 0);
    }

    /// Turns the directory into a mount point of its content, for this process and its children. Returns why that is
    /// not possible; null if it is.
    QString becomeMountPoint() const
    {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) != 0)
            return QString("cannot create a mount namespace: ") + strerror(errno);
        shell("cd ..; mv resources stored; mkdir resources");
        mount();
        return QString();
    }
    void mount() const { shell("cd ..; mount --bind stored resources"); }
    void unmount() const { shell("cd ..; umount --lazy resources"); }

    /// What the lookups of a page are, with this text.
    QString lookups(const QString& text) const
    {
        return QString("#1f2a37,Inter,15,48,file:%1/icons/day/home.svg%1/icons/night/home.svg,%2,true").arg(path, text);
    }

    const QTemporaryDir parent;
    const QString path = parent.filePath("resources");
};

} // namespace Tests
