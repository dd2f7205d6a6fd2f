#include "ResourceCheck/reading/TextFile.h"

#include <QFileInfo>

namespace ResourceCheck
{

TextFile::TextFile(const QString& path)
    : language(QFileInfo(path).completeBaseName())
    , file(path)
{
    for (const JsonValue& member : file.root().members) {
        if (member.type == JsonValue::Type::String)
            texts.append(member);
    }
}

QSet<QString> TextFile::urls() const
{
    QSet<QString> urls;
    for (const JsonValue& member : file.root().members)
        urls.insert(member.name);
    return urls;
}

} // namespace ResourceCheck
