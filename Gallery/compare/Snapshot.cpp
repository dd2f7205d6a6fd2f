#include "Gallery/compare/Snapshot.h"

#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/IniParser.h"
#include "ResourceFormat/Language.h"
#include "ResourceFormat/RegularFile.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QColor>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <tuple>

namespace Gallery
{

using namespace ResourceFormat;
using QmlHost::Answers;

namespace
{

QVector<IniEntry> iniEntries(const QString& path)
{
    QString reason;
    return IniParser(RegularFile::readAll(path, reason)).entries();
}

QString nameOf(const IniEntry& entry)
{
    return entry.group + QLatin1Char('/') + entry.key;
}

// The number as the library reads it, so that another notation is not a change.
QString number(const QString& text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? QString::number(value) : text;
}

// The front end shows the content, wherever the file is.
Snapshot::Value iconValue(const QString& relativePath, const QString& path)
{
    Snapshot::Value icon{relativePath, QStringLiteral("missing"), QString(), QString()};
    if (!QFileInfo::exists(path))
        return icon;
    const QByteArray content = RegularFile::readAll(path, icon.fault);
    icon.identity = QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex());
    icon.path = path;
    return icon;
}

} // namespace

bool Snapshot::Key::operator<(const Key& other) const
{
    return std::tie(name, variant) < std::tie(other.name, other.variant);
}

const QVector<Snapshot::Kind>& Snapshot::kinds()
{
    static const QVector<Kind> all{Display, Language, Color, Font, Dimension, Icon, Text};
    return all;
}

Snapshot::Snapshot(const Answers& answers, const QString& problem)
    : problemTexts(problem.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
{
    // A directory may have no texts, but not nothing at all.
    const bool areTextsKnown = answers.colorFile.isAnswered() || answers.fontFile.isAnswered()
        || answers.displaySizes.isAnswered() || answers.icons.isAnswered() || !answers.languages.isEmpty();
    const QPair<Kind, bool> parts[] = {
        {Color, answers.colorFile.isAnswered()},
        {Font, answers.fontFile.isAnswered()},
        {Dimension, answers.displaySizes.isAnswered()},
        {Display, answers.displaySizes.isAnswered()},
        {Icon, answers.icons.isAnswered()},
        {Text, areTextsKnown},
        {Language, areTextsKnown},
    };
    for (const auto& [kind, isAnswered] : parts) {
        if (!isAnswered)
            unreadable.insert({kind, QString()});
    }
    readColors(answers.colorFile.value);
    readFonts(answers.fontFile.value);
    readDimensions(answers.displaySizes.value);
    readIcons(answers.icons.value.first, answers.icons.value.second);
    readTexts(answers.textFolder.value, answers.languages);
}

Snapshot Snapshot::of(std::unique_ptr<QmlHost::Source> source)
{
    Snapshot snapshot;
    QObject::connect(
        source.get(), &QmlHost::Source::answered,
        [&snapshot](const Answers& answers, const QString& problem) { snapshot = Snapshot(answers, problem); });
    source->start();
    return snapshot;
}

const Snapshot::Values& Snapshot::values(Kind kind) const
{
    static const Values none;
    const auto found = valuesByKind.find(kind);
    return found == valuesByKind.end() ? none : *found;
}

QString Snapshot::fontFamily(const QString& fontName) const
{
    const QString group = fontName.left(fontName.lastIndexOf(QLatin1Char('/')) + 1);
    return values(Font).value({group + TarnisFontHandler::familyKey, QString()}).text;
}

bool Snapshot::isReadable(Kind kind, const QString& variant) const
{
    return !unreadable.contains({kind, QString()}) && !unreadable.contains({kind, variant});
}

const QStringList& Snapshot::problems() const
{
    return problemTexts;
}

void Snapshot::readColors(const QString& path)
{
    for (const IniEntry& entry : iniEntries(path)) {
        const QColor color(entry.value);
        const QString identity = color.isValid() ? color.name(QColor::HexArgb) : entry.value;
        valuesByKind[Color].insert({nameOf(entry), QString()}, {entry.value, identity, QString(), QString()});
    }
}

void Snapshot::readFonts(const QString& path)
{
    for (const IniEntry& entry : iniEntries(path)) {
        const Value value{entry.value, number(entry.value), QString(), QString()};
        valuesByKind[Font].insert({nameOf(entry), QString()}, value);
    }
}

void Snapshot::readDimensions(const QList<QPair<QSize, QString>>& displaySizes)
{
    for (const auto& [size, path] : displaySizes) {
        const QString display = DisplaySize::toName(size);
        valuesByKind[Display].insert({display, QString()}, {display, display, QString(), QString()});
        for (const IniEntry& entry : iniEntries(path)) {
            const Value value{entry.value, number(entry.value), QString(), QString()};
            valuesByKind[Dimension].insert({nameOf(entry), display}, value);
        }
    }
}

void Snapshot::readIcons(const QString& folder, const QString& mappingTable)
{
    if (!isReadable(Icon))
        return;
    const auto aliases = TarnisIconHandler(folder, QStringLiteral("{}")).parseMappingTable(mappingTable);
    for (auto alias = aliases.begin(); alias != aliases.end(); ++alias) {
        for (auto context = alias->begin(); context != alias->end(); ++context) {
            const Value icon = iconValue(*context, folder + QLatin1Char('/') + *context);
            valuesByKind[Icon].insert({alias.key(), context.key()}, icon);
            if (!icon.fault.isEmpty())
                problemTexts.append(QStringLiteral("%1: %2").arg(icon.path, icon.fault));
        }
    }
}

void Snapshot::readTexts(const QString& folder, const QStringList& languages)
{
    for (const QString& language : languages) {
        valuesByKind[Language].insert({language, QString()}, {language, language, QString(), QString()});
        const QString path = folder + QLatin1Char('/') + ResourceFormat::Language::fileName(language);
        QString reason;
        const QByteArray content = RegularFile::readAll(path, reason);
        const QJsonDocument document = QJsonDocument::fromJson(content);
        if (!document.isObject()) {
            unreadable.insert({Text, language});
            continue;
        }
        const QJsonObject texts = document.object();
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            if (text->isString()) {
                const QString value = text->toString();
                valuesByKind[Text].insert({text.key(), language}, {value, value, QString(), QString()});
            }
        }
    }
}

} // namespace Gallery
