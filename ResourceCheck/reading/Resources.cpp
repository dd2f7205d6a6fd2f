#include "ResourceCheck/reading/Resources.h"

#include <QDir>
#include <QRegularExpression>

namespace
{

QSize sizeOfName(const QString& baseName)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([1-9][0-9]{0,8})x([1-9][0-9]{0,8})\\z"));
    const QRegularExpressionMatch match = pattern.match(baseName);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

QFileInfoList filesIn(const QString& directory, const QString& pattern)
{
    return QDir(directory).entryInfoList(
        {pattern}, QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QVector<DimensionFile> readDimensions(const QString& directory)
{
    QVector<DimensionFile> dimensions;
    for (const QFileInfo& file : filesIn(directory, QStringLiteral("*.ini")))
        dimensions.append({IniFile(file.filePath()), sizeOfName(file.completeBaseName())});
    return dimensions;
}

IconTable readIconTable(const QString& path)
{
    IconTable table{JsonFile(path), {}};
    for (const JsonValue& alias : table.file.root().members) {
        if (alias.type != JsonValue::Type::Object)
            continue;
        QVector<IconPath> paths;
        for (const JsonValue& context : alias.members) {
            if (context.type == JsonValue::Type::String)
                paths.append({context.name, context.text, context.place});
        }
        table.aliases.append({alias.name, alias.namePlace, paths});
    }
    return table;
}

QVector<IconTable> readIconTables(const QString& directory)
{
    QVector<IconTable> tables{readIconTable(directory + QStringLiteral("/mapping.json"))};
    for (const QFileInfo& file : filesIn(directory, QStringLiteral("mapping.*.json")))
        tables.append(readIconTable(file.filePath()));
    return tables;
}

QVector<TextFile> readTexts(const QString& directory)
{
    QVector<TextFile> texts;
    for (const QFileInfo& info : filesIn(directory, QStringLiteral("*.json"))) {
        TextFile text{info.completeBaseName(), JsonFile(info.filePath()), {}};
        for (const JsonValue& member : text.file.root().members) {
            if (member.type == JsonValue::Type::String)
                text.texts.append(member);
        }
        texts.append(text);
    }
    return texts;
}

} // namespace

Resources::Resources(const QString& directory)
    : directory(directory)
    , colors(directory + QStringLiteral("/colors.ini"))
    , fonts(directory + QStringLiteral("/fonts.ini"))
    , dimensions(readDimensions(directory + QStringLiteral("/dimensions")))
    , iconDirectory(directory + QStringLiteral("/icons"))
    , iconTables(readIconTables(iconDirectory))
    , texts(readTexts(directory + QStringLiteral("/texts")))
{
}
