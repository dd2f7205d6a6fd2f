#include "ResourceCheck/reading/IconTable.h"

namespace ResourceCheck
{

IconTable::IconTable(const QString& path)
    : file(path)
{
    for (const JsonValue& alias : file.root().members) {
        if (alias.type != JsonValue::Type::Object)
            continue;
        QVector<IconPath> paths;
        for (const JsonValue& context : alias.members) {
            if (context.type == JsonValue::Type::String)
                paths.append({context.name, context.text, context.place});
        }
        aliases.append({alias.name, alias.namePlace, paths});
    }
}

} // namespace ResourceCheck
