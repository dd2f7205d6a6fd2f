#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>
#include <sys/stat.h>

class ModuleTest : public QObject
{
    Q_OBJECT

private:
    PrivateBus bus;
    std::optional<QTemporaryDir> directory;
    std::optional<TestProcess> module;

    QString path(const QString& name) const { return directory->filePath(name); }

    // All that the service says, a line per method: the value, or the error of its record.
    static QMap<QString, QString> ask()
    {
        LogRecorder log;
        const TarnisDeviceUiResourcesDBusConnector resources;
        const TarnisIconProviderDBusConnector icons;
        const auto textOr = [&](const QString& text) { return text + log.take().join('\n'); };
        QMap<QString, QString> answers;
        answers["fonts"] = textOr(resources.getFontIniFilePath());
        answers["colors"] = textOr(resources.getColorIniFilePath());
        QStringList sizes;
        for (const auto& [size, file] : resources.getSupportedDisplaySizes())
            sizes.append(QString("%1x%2 %3").arg(size.width()).arg(size.height()).arg(file));
        answers["dimensions"] = textOr(sizes.join(';'));
        answers["base"] = textOr(icons.getIconResourcesBasePath());
        answers["table"] = textOr(icons.getIconResourcesMappingTable(QString()));
        answers["night table"] = textOr(icons.getIconResourcesMappingTable("night"));
        answers["hidden table"] = textOr(icons.getIconResourcesMappingTable(".night"));
        answers["table above"] = textOr(icons.getIconResourcesMappingTable("x/../../../etc/passwd"));
        return answers;
    }

private Q_SLOTS:
    void init()
    {
        directory.emplace();
        for (const char* name : {"fonts.ini", "colors.ini", "dimensions/1024x600.ini", "dimensions/800x600.ini",
                                 "dimensions/800x480.ini", "dimensions/notes.txt"})
            writeFile(path(name), "");
        writeFile(path("icons/mapping.json"), "{\"a\": {}}");
        writeFile(path("icons/mapping.night.json"), "{ }");
        module.emplace(TARNIS_MODULE, QStringList{"--resources", directory->path()});
        QCOMPARE(module->firstLine(), "Module.Tarnis publishes " + directory->path());
    }

    void goodDirectory()
    {
        const QMap<QString, QString> answers = ask();
        QCOMPARE(answers["fonts"], path("fonts.ini"));
        QCOMPARE(answers["colors"], path("colors.ini"));
        const QString size = "%1 " + path("dimensions/%1.ini");
        QCOMPARE(answers["dimensions"], size.arg("800x480") + ";" + size.arg("800x600") + ";" + size.arg("1024x600"));
        QCOMPARE(answers["base"], path("icons"));
        QCOMPARE(answers["table"], QString("{\"a\": {}}"));
        QCOMPARE(answers["night table"], QString("{ }"));
        QVERIFY(answers["hidden table"].endsWith("\"\\\".night\\\" is not the name of a mapping table\""));
        QVERIFY(answers["table above"].contains("is not the name of a mapping table"));
        QFile::remove(path("dimensions/800x600.ini"));
        writeFile(path("icons/mapping.json"), "{}");
        QCOMPARE(ask()["dimensions"], size.arg("800x480") + ";" + size.arg("1024x600"));
        QCOMPARE(ask()["table"], QString("{}"));
    }

    void badFileIsAnsweredWithAnErrorThatNamesIt_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("content"); // null: removed; "/": a directory; "|": a FIFO
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* answer, const char* name, const QString& content, const char* reason) {
            QTest::addRow("%s: %s%s", name, qPrintable(content), reason) << answer << name << content << reason;
        };
        row("fonts", "fonts.ini", QString(), "does not exist");
        row("colors", "colors.ini", "/", "is not a regular file");
        row("colors", "colors.ini", "|", "is not a regular file");
        row("dimensions", "dimensions/800x480.ini", "/", "is not a regular file");
        row("dimensions", "dimensions/800X480.ini", "", "is not named WIDTHxHEIGHT.ini");
        row("dimensions", "dimensions/0x480.ini", "", "is not named WIDTHxHEIGHT.ini");
        row("dimensions", "dimensions", QString(), "holds no dimension file");
        row("base", "icons", QString(), "is not a directory");
        row("table", "icons/mapping.json", QString(), "does not exist");
        row("table", "icons/mapping.json", "{\"a\": ", "offset 6: unterminated object");
        row("table", "icons/mapping.json", "[]", "not a JSON object");
    }

    void badFileIsAnsweredWithAnErrorThatNamesIt()
    {
        QFETCH(QString, answer);
        QFETCH(QString, name);
        QFETCH(QString, content);
        QFETCH(QString, reason);
        QMap<QString, QString> expected = ask();
        if (QFileInfo(path(name)).isDir())
            QDir(path(name)).removeRecursively();
        else
            QFile::remove(path(name));
        if (content == "/")
            QDir().mkpath(path(name));
        else if (content == "|")
            mkfifo(qPrintable(path(name)), S_IRUSR | S_IWUSR);
        else if (!content.isNull())
            writeFile(path(name), content.toUtf8());
        QMap<QString, QString> found = ask();
        QVERIFY2(found[answer].contains(path(name)) && found[answer].contains(reason), qPrintable(found[answer]));
        // The other answers are as they were, but for the icons that lie in the directory that went.
        for (const QString other : {"fonts", "colors", "dimensions", "base", "table"}) {
            if (other != answer && !(name == "icons" && other == "table"))
                QCOMPARE(found[other], expected[other]);
        }
    }

    void processSaysWhyItLeaves_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("no directory") << QStringList{"--resources", "/no/such"} << 3 << QByteArray("/no/such");
        QTest::newRow("file") << QStringList{"--resources", TARNIS_MODULE} << 3 << QByteArray(TARNIS_MODULE);
        QTest::newRow("no option") << QStringList() << 2 << QByteArray("--resources");
        QTest::newRow("unknown option") << QStringList{"--what"} << 2 << QByteArray("what");
        QTest::newRow("name taken") << QStringList{"--resources", "/tmp"} << 5 << QByteArray("Module.Tarnis");
        QTest::newRow("no bus") << QStringList{"--session", "--resources", "/tmp"} << 4 << QByteArray("/no/bus");
    }

    void processSaysWhyItLeaves()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, message);
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus");
        const Outcome outcome = run(TARNIS_MODULE, arguments);
        QCOMPARE(outcome.exitStatus, status);
        QVERIFY2(outcome.errors.startsWith("tarnis-module: ") && outcome.errors.contains(message), outcome.errors);
    }

    void terminationIsClean()
    {
        module->process().terminate();
        QVERIFY(module->process().waitForFinished(10000));
        QCOMPARE(module->process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(module->process().exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(ModuleTest)
#include "ModuleTest.moc"
