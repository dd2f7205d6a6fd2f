#pragma once

#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

namespace Tests
{

/// The processes and files of one test of the gallery. At the end, the processes are killed and the files removed.
struct GalleryFixture {
    ~GalleryFixture()
    {
        gallery.kill();
        gallery.waitForFinished();
    }

    /// A path below the temporary directory of the test.
    QString path(const QString& name = QString()) const { return directory.filePath(name); }

    void startModule(const QString& resources)
    {
        module.emplace(TARNIS_MODULE, QStringList{"--resources", resources});
        QVERIFY(module->firstLine().endsWith(resources));
    }

    void signalModule(int signal) { module->sendSignal(signal); }

    /// Copies the sample resources to the temporary directory.
    void copyResources() const { QCOMPARE(run("cp", {"-r", QString(RESOURCES) + "/.", path()}).exitStatus, 0); }

    /// Opens the gallery's window on a resource directory, or on those of the service if the path is empty.
    void startGallery(const QString& resources, const QString& page)
    {
        QStringList arguments{"--page", page};
        if (!resources.isEmpty())
            arguments.append(resources);
        gallery.launch(TARNIS_GALLERY, arguments);
    }

private:
    const QTemporaryDir directory;
    std::optional<TestProcess> module;
    Child gallery;
};

/// The number of pixels in this color.
inline int countPixels(const QImage& picture, QRgb color)
{
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    const auto* begin = reinterpret_cast<const QRgb*>(pixels.constBits());
    return static_cast<int>(std::count(begin, begin + pixels.sizeInBytes() / 4, color | 0xFF000000));
}

/// Runs the tests of a class with a bus and an X screen of their own.
template <typename Test>
int runGalleryTest(int argc, char* argv[])
{
    const TestProcess server("Xvfb", {"-displayfd", "1", "-dpi", "96", "-screen", "0", "1280x800x24"});
    qputenv("DISPLAY", ':' + server.firstLine().toUtf8());
    const QTemporaryDir temporary; // killed programs leave their temporary files
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));
    const PrivateBus bus;
    const QGuiApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace Tests
