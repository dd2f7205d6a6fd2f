#pragma once

#include "tests/support/TestProcess.h"

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace Benchmarks
{

/// A copy of a resource directory with one more color and one more icon. They come first on the pages of the gallery.
class MarkedResources
{
public:
    explicit MarkedResources(const QString& original)
    {
        if (Tests::run("cp", {"-r", original + "/.", path()}).exitStatus != 0)
            qFatal("cannot copy %s", qPrintable(original));
        colors = read("colors.ini");
        QJsonObject table = QJsonDocument::fromJson(read("icons/mapping.json")).object();
        table.insert("0", QJsonObject{{"defaultContext", "0.svg"}});
        Tests::writeFile(path("icons/mapping.json"), QJsonDocument(table).toJson());
        paintIcon(Qt::white);
    }

    QString path(const QString& name = QString()) const { return directory.filePath(name); }

    void paintColor(const QColor& color) const
    {
        const QByteArray entry = "0=" + color.name().toLatin1() + '\n';
        Tests::writeFile(path("colors.ini"), "[Day]\n" + entry + "[Night]\n" + entry + colors);
    }

    void paintIcon(const QColor& color) const
    {
        Tests::writeFile(path("icons/0.svg"),
                         "<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'><rect width='16' height='16' "
                         "fill='"
                             + color.name().toLatin1() + "'/></svg>");
    }

private:
    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        return file.readAll();
    }

    const QTemporaryDir directory;
    QByteArray colors; // the content of the original file
};

} // namespace Benchmarks
