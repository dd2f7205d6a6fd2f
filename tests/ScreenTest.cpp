#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class ScreenTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;

private Q_SLOTS:
    void withoutScreenTheHandlersSaySoAndStayUsable()
    {
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        LogRecorder log;
        const TarnisFontHandler fonts(writeFile(directory.filePath("fonts.ini"), "[T]\nNormal=16"));
        QCOMPARE(fonts.getFontPointSize("T", "Normal"), 12.0);
        TarnisElementDimensionHandler dimensions({{{800, 480}, writeFile(directory.filePath("a.ini"), "[G]\nk=1")}});
        QVERIFY(dimensions.uiElementDimensions().isEmpty());
        QCOMPARE(log.take(),
                 (QStringList{"TarnisFontHandler::TarnisFontHandler: Cannot read pointer to primary screen!",
                              "critical TarnisElementDimensionHandler::TarnisElementDimensionHandler: Unable to get "
                              "primary screen!"}));
    }

    void dimensionsFollowARealScreen()
    {
        TestProcess server("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        const QByteArray display = ":" + server.firstLine().toUtf8();
        qputenv("DISPLAY", display);
        qputenv("QT_QPA_PLATFORM", "xcb");
        int argc = 1;
        char name[] = "ScreenTest";
        char* argv[] = {name, nullptr};
        const QGuiApplication application(argc, argv);
        const auto dimensions = [&](const QString& size) {
            return writeFile(directory.filePath(size + ".ini"), "[Screen]\nsize=" + size.left(3).toUtf8());
        };
        TarnisElementDimensionHandler handler({{{800, 480}, dimensions("800x480")}, {{1280, 800}, dimensions("128")}});
        QSignalSpy changed(&handler, &TarnisElementDimensionHandler::uiElementDimensionsChanged);
        QCOMPARE(handler.uiElementDimensions().value("Screen/size"), QVariant(128));
        const auto switchTo = [](int width, int height) {
            const QString mode = QString("%1x%2").arg(width).arg(height);
            QStringList timings{"--newmode", mode, "30"};
            for (const int pixels : {width, height}) {
                for (int blank = 0; blank < 4; ++blank)
                    timings.append(QString::number(pixels + blank));
            }
            return run("xrandr", timings).exitStatus == 0
                && run("xrandr", {"--addmode", "screen", mode}).exitStatus == 0
                && run("xrandr", {"--output", "screen", "--mode", mode}).exitStatus == 0;
        };
        QVERIFY(switchTo(1100, 700));
        QTRY_COMPARE(QGuiApplication::primaryScreen()->size(), QSize(1100, 700));
        QCOMPARE(changed.count(), 0);
        QVERIFY(switchTo(800, 480));
        QTRY_COMPARE(handler.uiElementDimensions().value("Screen/size"), QVariant(800));
        QCOMPARE(changed.count(), 1);
    }
};

QTEST_APPLESS_MAIN(ScreenTest)
#include "ScreenTest.moc"
