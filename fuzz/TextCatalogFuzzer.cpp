// The files of three languages, compared with a naive reading of them. A byte 0xFF, which no text contains, ends a
// file.
#include "Common/TextTools/TextManager.h"
#include "fuzz/Claims.h"
#include "tests/support/TestProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QVariant>

using namespace Tests;

namespace
{

QMap<QString, QString> readNaively(const QByteArray& content, int& faults)
{
    QMap<QString, QString> texts;
    const QJsonDocument document = QJsonDocument::fromJson(content);
    faults += document.isObject() ? 0 : 1;
    const QJsonObject members = document.object();
    for (auto member = members.begin(); member != members.end(); ++member) {
        const QVariant text = member.value().toVariant();
        if (text.type() == QVariant::String)
            texts[member.key()] = text.toString();
        else
            ++faults;
    }
    return texts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QTemporaryDir directory;
    static TextManager manager(directory.path(), "de_AT");
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QList<QByteArray> contents = bytes.split('\xFF');
    const QStringList filenames{"de_AT.json", "de.json", "en.json"};
    QVector<QMap<QString, QString>> texts;
    int faults = 0;
    for (const QString& filename : filenames) {
        const QByteArray content = contents.value(texts.size());
        writeFile(directory.filePath(filename), content);
        texts += readNaively(content, faults);
    }

    logRecords = 0;
    manager.setLanguage("de_AT");
    requireEqual(logRecords, faults, "warnings");
    for (int index = 0; index < filenames.size(); ++index) {
        requireEqual(manager.getAvailableUrls(filenames.at(index)), texts.at(index).keys(), "URLs");
        for (const QString& url : texts.at(index).keys()) {
            const QString expected = texts.at(0).value(url, texts.at(1).value(url, texts.at(2).value(url)));
            requireEqual(manager.getText(url, "de_AT"), expected, "text");
        }
    }
    const QString unknown = "?" + QStringList(texts.at(0).keys() + texts.at(1).keys() + texts.at(2).keys()).join("");
    requireEqual(manager.getText(unknown, "de_AT"), unknown, "unknown text");
    return 0;
}
