// What the handlers ask of the INI reader, and how often: this program brings a reader of its own, which notes the
// calls, as a host with its own platform would.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <QtTest>

namespace
{

QStringList calls;

QStringList takeCalls()
{
    return std::exchange(calls, QStringList());
}

} // namespace

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
    void init() { calls.clear(); }

    void colors()
    {
        {
            const TarnisColorHandler colors("c.ini");
            QCOMPARE(takeCalls(), QStringList("open c.ini"));
            QCOMPARE(colors.getColor("g", "k"), QString("text"));
            QCOMPARE(takeCalls(), (QStringList{"contains g/k", "string g/k"}));
            QCOMPARE(colors.getColor("none", "k"), QString());
            QCOMPARE(takeCalls(), QStringList("contains none/k"));
        }
        QCOMPARE(takeCalls(), QStringList("close"));
    }

    void fonts()
    {
        const TarnisFontHandler fonts("f.ini");
        QCOMPARE(takeCalls(), QStringList("open f.ini"));
        QCOMPARE(fonts.getFontFamily("g"), QString("text"));
        QCOMPARE(takeCalls(), (QStringList{"contains g/Family", "string g/Family"}));
        QCOMPARE(fonts.getFontPointSize("g", "k"), 12.0);
        QCOMPARE(takeCalls(), (QStringList{"contains g/k", "value g/k"}));
        QCOMPARE(fonts.getFontPointSize("none", "k"), 0.0);
        QCOMPARE(takeCalls(), QStringList("contains none/k"));
    }

    void dimensionsAreReadOnceInOrderAndTheLastHolds()
    {
        const TarnisElementDimensionHandler dimensions({{{1, 1}, "d.ini"}});
        QCOMPARE(takeCalls(),
                 (QStringList{"open d.ini", "groups", "keys G", "integer G/k 0", "keys H", "keys G", "integer G/k 0",
                              "close"}));
        QCOMPARE(dimensions.uiElementDimensions(), (QVariantMap{{"G/k", 7}}));
    }
};

QTEST_MAIN(ReaderCallTest)
#include "ReaderCallTest.moc"
