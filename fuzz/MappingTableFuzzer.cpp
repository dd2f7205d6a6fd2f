// The mapping table, compared with a naive reading of the same text, and read again after being written out.
#include "fuzz/Claims.h"
#include "tests/support/IconMap.h"

using namespace Tests;

namespace
{

using IconMap = TarnisIconHandler::IconMap;

IconMap readNaively(const QString& text, int& faults)
{
    IconMap icons;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    faults = document.isObject() ? 0 : 1;
    const QJsonObject aliases = document.object();
    for (auto alias = aliases.begin(); alias != aliases.end(); ++alias) {
        TarnisIconHandler::ContextMap paths;
        faults += alias.value().isObject() ? 0 : 1;
        const QJsonObject contexts = alias.value().toObject();
        for (auto context = contexts.begin(); context != contexts.end(); ++context) {
            const QVariant path = context.value().toVariant();
            const bool isText = path.type() == QVariant::String;
            paths[isText ? context.key() : ""] = isText ? path.toString() : "";
            faults += isText ? 0 : 1;
        }
        icons[alias.key()] = paths;
    }
    return icons;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const TarnisIconHandler handler("/", "{}");
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    int faults = 0;
    const IconMap expected = readNaively(text, faults);
    logRecords = 0;
    const IconMap icons = handler.parseMappingTable(text);
    requireEqual(icons, expected, "icons");
    requireEqual(logRecords, faults, "warnings");
    // Lone halves of surrogate pairs cannot be written, and Qt drops a byte-order mark in front of a name.
    for (const char* const mark : {"\\ud", "\\ufeff", "\uFEFF"}) {
        if (text.contains(mark, Qt::CaseInsensitive))
            return 0;
    }
    requireEqual(handler.parseMappingTable(writeMappingTable(icons)), icons, "icons, written and read again");
    requireEqual(logRecords, faults, "warnings, including those for what was written");
    return 0;
}
