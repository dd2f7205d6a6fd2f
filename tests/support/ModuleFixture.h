#pragma once

#include "tests/support/Getters.h"
#include "tests/support/TestProcess.h"

#include <QtTest>

#include <optional>

namespace Tests
{

/// The module with a small resource directory, on the bus of the test.
struct ModuleFixture {
    explicit ModuleFixture(const QString& busConfiguration = TEST_BUS_CONFIGURATION)
        : bus(busConfiguration)
    {
    }

    /// What the getters give, in their order.
    QStringList ask() const
    {
        QStringList answers;
        for (const Getter& getter : getters)
            answers += getter.ask(connectors);
        return answers;
    }

    void startModule()
    {
        directory.emplace();
        QVERIFY(QDir().mkpath(path("icons")) && QDir().mkpath(path("dimensions")));
        shell(
            "touch fonts.ini colors.ini; cd dimensions; touch 1024x600.ini 800x600.ini x.txt 800x480.ini; cd ../icons; "
            "echo '{\"a\": {}}' > mapping.json; echo '{ }' > mapping.night.json");
        errors.setFileName(directory->filePath("errors"));
        module.emplace(TARNIS_MODULE, QStringList{"--resources", path()}, errors.fileName());
        QCOMPARE(module->firstLine(), "Module.Tarnis publishes " + path());
        QVERIFY(errors.open(QIODevice::ReadOnly));
    }

    void stopModule()
    {
        module.reset();
        errors.close();
    }

    /// Of the resource directory, or of a file in it.
    QString path(const QString& file = {}) const
    {
        return directory->filePath("resources") + (file.isEmpty() ? "" : '/' + file);
    }

    /// The lines that the module has logged since the last call, with "DIR" for the resource directory.
    QStringList takeErrors()
    {
        return QString::fromUtf8(errors.readAll()).replace(path(), "DIR").split('\n', Qt::SkipEmptyParts);
    }

    /// Runs a command of the shell in the resource directory.
    void shell(const QString& command) const
    {
        QCOMPARE(run("sh", {"-c", "cd $0 && " + command, path()}).exitStatus, 0);
    }

    PrivateBus bus;
    const Connectors connectors{};
    std::optional<QTemporaryDir> directory; // which contains the resource directory
    std::optional<TestProcess> module;

private:
    QFile errors;
};

} // namespace Tests
