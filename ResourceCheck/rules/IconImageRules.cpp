#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

#include <QHash>
#include <QSet>

namespace ResourceCheck
{

namespace
{

void checkImages(const Project& project, const Report& report)
{
    QSet<const IconFiles::File*> seen; // several icons can be links to the same file
    for (const IconPath& path : project.resources.iconPaths()) {
        const IconFiles::File* const file = project.resources.iconFiles.find(path.path);
        if (file == nullptr || seen.contains(file))
            continue;
        seen.insert(file);
        if (!file->imageFault.isNull())
            report(path.place, QStringLiteral("\"%1\" %2").arg(path.path, file->imageFault));
    }
}

void reportSame(const IconFiles& files, const IconAlias& alias, const Report& report)
{
    QHash<QByteArray, QString> contexts;
    for (const IconPath& path : alias.paths) {
        const IconFiles::File* const file = files.find(path.path);
        if (file == nullptr)
            continue;
        const QString first = contexts.value(file->digest, path.context);
        contexts.insert(file->digest, first);
        if (first != path.context) {
            report(path.place,
                   QStringLiteral("the alias \"%1\" has the same icon for \"%2\"; use another icon or remove this one")
                       .arg(alias.name, first));
        }
    }
}

void checkSame(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        for (const IconAlias& alias : table.aliases)
            reportSame(project.resources.iconFiles, alias, report);
    }
}

} // namespace

QVector<Rule> iconImageRules()
{
    return {
        {QStringLiteral("icon-unreadable"), Severity::Error,
         QStringLiteral("An image that cannot be read, or is not what its name says, is not shown as intended."),
         checkImages,
         QStringLiteral("Save the image again, in the format that its suffix names. SVG and PNG are safe.")},
        {QStringLiteral("icon-same"), Severity::Warning,
         QStringLiteral("The icon does not change when the context changes."), checkSame,
         QStringLiteral("Draw a different icon for the context, or remove the context from the alias.")},
    };
}

} // namespace ResourceCheck
