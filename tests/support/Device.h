#pragma once

#include "ResourceFormat/Directory.h"
#include "ResourceFormat/Language.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "tests/support/Getters.h"
#include "tests/support/ResourceLookups.h"
#include "tests/support/TestProcess.h"

#include <QImageReader>
#include <QTemporaryDir>
#include <QUrl>

namespace Tests
{

/// What a device logs.
struct DeviceRecord {
    QString text;
    QString file;   // the file in the resource directory that it is about; empty if the text does not tell
    QString source; // the file that a lookup searched; empty if it is not about a lookup
};

/// The real service on a bus of its own, and a host with the handlers of the library, which the answers of the service
/// lead to the files.
class Device
{
public:
    /// The front end looks up these names and those in the damaged directory. The directory must exist.
    Device(const QString& directory, const ResourceLookups& names)
        : resources(directory)
        , frontEnd(names)
        , serviceLog(directory + ".service-log")
        , service("sh",
                  {"-c", "exec \"$0\" --resources \"$1\" 2>\"$2\"", TARNIS_MODULE, directory, serviceLog.fileName()})
        , previous(qInstallMessageHandler(note))
    {
        if (service.firstLine() != "Module.Tarnis publishes " + directory || !serviceLog.open(QIODevice::ReadOnly))
            qFatal("the service does not start");
        for (const QString icon : {"day", "night"}) {
            for (const QFileInfo& file : QDir("resources/icons/" + icon).entryInfoList(QDir::Files))
                knownPictures.insert(content(file.filePath()));
        }
    }
    ~Device() { qInstallMessageHandler(previous); }
    Q_DISABLE_COPY(Device)

    /// Starts a front end and looks up everything. `undrawable` are the icons that the device would not survive.
    QVector<DeviceRecord> run(const QSet<QString>& undrawable)
    {
        log.clear();
        result.clear();
        const QString colorFile = connectors.resources.getColorIniFilePath();
        const QString fontFile = connectors.resources.getFontIniFilePath();
        const QString table = connectors.icons.getIconResourcesMappingTable("");
        const TarnisColorHandler colors(colorFile);
        const TarnisFontHandler fonts(fontFile);
        const TarnisIconHandler icons(connectors.icons.getIconResourcesBasePath(), table);
        for (const auto& size : connectors.resources.getSupportedDisplaySizes())
            TarnisElementDimensionHandler({}).loadUiElementDimensions(size);
        readTexts();
        take({});
        ResourceLookups names(colorFile, fontFile, table);
        log.clear(); // the files are read once more
        names.add(frontEnd);
        for (const auto& [group, key] : qAsConst(names.colors))
            colors.getColor(group, key);
        take(resources.colorFile());
        for (const auto& [group, key] : qAsConst(names.fontGroups))
            fonts.getFontFamily(group);
        for (const auto& [group, key] : qAsConst(names.fontSizes))
            fonts.getFontPointSize(group, key);
        take(resources.fontFile());
        showIcons(icons, names.icons, undrawable);
        while (!serviceLog.atEnd())
            result.append({"service: " + QString::fromUtf8(serviceLog.readLine()).trimmed(), {}, {}});
        return result;
    }

    bool isServiceAlive() { return service.process().state() == QProcess::Running; }

private:
    static void note(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
    {
        log.append(qstrcmp(context.category, "qt.svg") == 0 ? "qt.svg: " + text : text);
    }

    static QByteArray content(const QString& path)
    {
        QString problem;
        return ResourceFormat::RegularFile::readAll(path, problem);
    }

    void take(const QString& source, const QString& file = {})
    {
        static const QRegularExpression place("^(?:Cannot read \")?(/.*?)(?:\": |:\\d|: )");
        for (const QString& text : std::exchange(log, {}))
            result.append({text, file.isEmpty() ? place.match(text).captured(1) : file, source});
    }

    void readTexts()
    {
        const TextManager texts(resources.textFolder(), "en");
        const TarnisTextHandler handler(texts);
        for (const QFileInfo& file : resources.languageFiles())
            texts.getText("", ResourceFormat::Language::ofFile(file.fileName()));
    }

    void showIcons(const TarnisIconHandler& icons, const ResourceLookups::Names& names, const QSet<QString>& undrawable)
    {
        QStringList once;
        QSet<QString> shown;
        for (const auto& [alias, context] : names) {
            const QString file = QUrl(icons.getIconPathAsFileUrl(alias, context)).toLocalFile();
            const QString path = icons.getIconPath(alias, context);
            log.removeDuplicates();
            for (const QString& text : std::exchange(log, {})) {
                if (!once.contains(text + alias))
                    once.append(text + alias), result.append({text, {}, resources.mappingTable()});
            }
            const QString identity = QFileInfo(path).canonicalFilePath();
            if (path.isEmpty() || shown.contains(identity) || undrawable.contains(identity))
                continue;
            shown.insert(identity);
            if (!knownPictures.contains(content(path)))
                show(file);
            take({}, path);
        }
    }

    // Like the type Image of QML, but always at the same size.
    static void show(const QString& file)
    {
        QImageReader reader(file);
        reader.setScaledSize({24, 24});
        if (!QFileInfo(file).isFile())
            log.append("QML Image: Cannot open: " + file);
        else if (reader.read().isNull())
            log.append("QML Image: Error decoding: " + file + ": " + reader.errorString());
    }

    inline static QStringList log;
    const ResourceFormat::Directory resources;
    const ResourceLookups frontEnd;
    QSet<QByteArray> knownPictures; // which Qt draws without a record
    QVector<DeviceRecord> result;
    PrivateBus bus;
    const Connectors connectors{};
    QFile serviceLog;
    TestProcess service;
    const QtMessageHandler previous;
};

} // namespace Tests
