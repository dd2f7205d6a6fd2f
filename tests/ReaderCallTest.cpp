// What the handlers ask of the INI reader, and how often: this program brings a reader of its own, which notes the
// calls, as a host with its own platform would. It has no screen.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "tests/support/LogRecorder.h"

#include <QtTest>

static QStringList calls;

IniFileManager::IniFileManager(const QString& path, const char* codec)
{
    calls.append("open " + path + (codec == nullptr ? "" : " with a codec"));
}

IniFileManager::~IniFileManager()
{
    calls.append("close");
}

bool IniFileManager::contains(const QString& group, const QString& key) const
{
    calls.append("contains " + group + '/' + key);
    return group != "none";
}

QString IniFileManager::getValueString(const QString& group, const QString& key, const QString& defaultValue) const
{
    calls.append("string " + group + '/' + key + (defaultValue.isNull() ? "" : " with a default"));
    return "text";
}

QVariant IniFileManager::getValue(const QString& group, const QString& key, const QVariant& defaultValue) const
{
    calls.append("value " + group + '/' + key + (defaultValue.isValid() ? " with a default" : ""));
    return 16;
}

int IniFileManager::getValueInteger(const QString& group, const QString& key, int defaultValue) const
{
    calls.append("integer " + group + '/' + key + ' ' + QString::number(defaultValue));
    return calls.size();
}

QList<QString> IniFileManager::getGroups() const
{
    calls.append("groups");
    return {"G", "H", "G"};
}

QList<QString> IniFileManager::getChildKeys(const QString& group) const
{
    calls.append("keys " + group);
    return group == "G" ? QList<QString>{"k"} : QList<QString>();
}

class ReaderCallTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlersWithoutAScreenAskTheReaderWhatTheyNeedAndNoMore()
    {
        LogRecorder log;
        const TarnisColorHandler colors("c.ini");
        QCOMPARE(colors.getColor("g", "k"), "text");
        QVERIFY(!colors.getColor("none", "k").isNull());
        const TarnisFontHandler fonts("f.ini");
        QCOMPARE(fonts.getFontFamily("g"), "text");
        QVERIFY(!fonts.getFontFamily("none").isNull());
        QCOMPARE(fonts.getFontPointSize("g", "k"), 12.0);
        TarnisElementDimensionHandler dimensions({{{1, 1}, "d.ini"}});
        dimensions.loadUiElementDimensions({{1, 1}, "d.ini"});
        QCOMPARE(dimensions.uiElementDimensions(), (QVariantMap{{"G/k", 17}}));
        QCOMPARE(calls.join("; "),
                 "open c.ini; contains g/k; string g/k; contains none/k; open f.ini; contains g/Family; "
                 "string g/Family; contains none/Family; contains g/k; value g/k; "
                 "open d.ini; groups; keys G; integer G/k 0; keys H; keys G; integer G/k 0; close");
        QCOMPARE(
            log.take().filter("screen").join('\n'),
            "TarnisFontHandler::TarnisFontHandler: Cannot read pointer to primary screen!\n"
            "critical TarnisElementDimensionHandler::TarnisElementDimensionHandler: Unable to get primary screen!");
    }
};

QTEST_GUILESS_MAIN(ReaderCallTest)
#include "ReaderCallTest.moc"
