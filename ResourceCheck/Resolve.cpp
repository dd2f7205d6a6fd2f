#include "ResourceCheck/Resolve.h"

#include "Common/TextTools/TextManager.h"
#include "ResourceCheck/LookupSuggestion.h"
#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/reading/Resources.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/Language.h"
#include "ResourceFormat/PublishedResources.h"
#include "ResourceFormat/RegularFile.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

// Returns whether there is a value.
bool print(const char* name, const QString& value)
{
    std::printf("%-18s %s\n", name, value.isEmpty() ? "(nothing)" : qUtf8Printable(value));
    return !value.isEmpty();
}

void printPlace(const IniFile& file, const QString& group, const QString& key)
{
    if (const IniEntry* entry = file.content().find(group, key))
        print("listed at:", QStringLiteral("%1:%2").arg(file.path(), QString::number(entry->line)));
}

bool resolveColor(const Resources& resources, const QStringList& names)
{
    const TarnisColorHandler handler(resources.colors.path());
    printPlace(resources.colors, names.at(0), names.at(1));
    return print("color:", handler.getColor(names.at(0), names.at(1)));
}

bool resolveFont(const Resources& resources, const QStringList& names)
{
    const TarnisFontHandler handler(resources.fonts.path());
    const bool hasFamily = print("family:", handler.getFontFamily(names.at(0)));
    if (names.size() == 1)
        return hasFamily;
    const IniEntry* entry = resources.fonts.content().find(names.at(0), names.at(1));
    printPlace(resources.fonts, names.at(0), names.at(1));
    print("pixels:", entry != nullptr ? entry->value : QString());
    const double points = handler.getFontPointSize(names.at(0), names.at(1));
    return print("points at 96 dpi:", points != 0.0 ? QString::number(points) : QString()) && hasFamily;
}

bool resolveDimension(const Resources& resources, const QStringList& names)
{
    QStringList problems;
    TarnisElementDimensionHandler handler(
        ResourceFormat::PublishedResources(resources.directory).displaySizes(problems));
    for (const QString& problem : qAsConst(problems))
        print("service error:", problem);
    const QPair<QSize, QString> nearest =
        handler.nearestNeighbourScreenSize(ResourceFormat::DisplaySize::fromName(names.at(0)));
    print("screen:", names.at(0));
    if (!print("nearest display:", nearest.second))
        return false;
    handler.loadUiElementDimensions(nearest);
    return print("pixels:", handler.uiElementDimensions().value(names.at(1)).toString());
}

bool resolveIcon(const Resources& resources, const QStringList& names)
{
    QString problem;
    const QByteArray table = ResourceFormat::RegularFile::readAll(resources.directory.mappingTable(), problem);
    const TarnisIconHandler handler(resources.icons.path(), QString::fromUtf8(table));
    const auto contexts = handler.parseMappingTable(QString::fromUtf8(table)).value(names.at(0));
    const QString requested = names.value(1, TarnisIconHandler::defaultContextPathKey);
    const auto effective = TarnisIconHandler::findContext(contexts, requested);
    print("alias:", names.at(0));
    print("requested context:", requested);
    if (effective != contexts.constEnd()) {
        const QString path = QDir(resources.icons.path()).absolutePath() + QLatin1Char('/') + *effective;
        print("effective context:", effective.key());
        print("relative path:", *effective);
        print("absolute path:", path);
        print("exists:", QFile::exists(path) ? QStringLiteral("yes") : QStringLiteral("no"));
    }
    return print("URL:", handler.getIconPathAsFileUrl(names.at(0), requested));
}

bool resolveText(const Resources& resources, const QStringList& names)
{
    namespace Language = ResourceFormat::Language;
    const QString& language = names.at(1);
    const TextManager manager(resources.directory.textFolder(), language);
    const TarnisTextHandler handler(manager);
    for (const QString& one : Language::fallbackChain(language)) {
        const QString file = Language::fileName(one);
        const bool isFound = manager.getAvailableUrls(file).contains(names.at(0));
        print(isFound ? "found in:" : "not in:", file);
        if (isFound)
            break;
    }
    // The library publishes only the texts of the second fallback language.
    const QString last = Language::fileName(Language::secondFallback());
    print("offered by:", manager.getAvailableUrls(last).contains(names.at(0)) ? last : QString());
    return print("text:", handler.translatedTexts().value(names.at(0)).toString());
}

struct Kind {
    QString name;
    QString names; // optional ones in brackets
    bool (*resolve)(const Resources& resources, const QStringList& names);
};

const QVector<Kind>& kinds()
{
    static const QVector<Kind> list{
        {QStringLiteral("color"), QStringLiteral("GROUP KEY"), resolveColor},
        {QStringLiteral("font"), QStringLiteral("GROUP [KEY]"), resolveFont},
        {QStringLiteral("dimension"), QStringLiteral("WxH GROUP/KEY"), resolveDimension},
        {QStringLiteral("icon"), QStringLiteral("ALIAS [CONTEXT]"), resolveIcon},
        {QStringLiteral("text"), QStringLiteral("URL LANGUAGE"), resolveText},
    };
    return list;
}

} // namespace

QString resolveUsage()
{
    QString usage;
    for (const Kind& kind : kinds())
        usage += QStringLiteral("  resolve DIR %1 %2\n").arg(kind.name, kind.names);
    return usage;
}

QString questionProblem(const QStringList& question)
{
    QStringList known;
    for (const Kind& kind : kinds()) {
        known.append(kind.name);
        if (kind.name != question.value(0))
            continue;
        const int most = kind.names.count(QLatin1Char(' ')) + 1;
        const int least = most - kind.names.count(QLatin1Char('['));
        if (question.size() - 1 < least || question.size() - 1 > most)
            return QStringLiteral("wrong number of names; use: resolve DIR %1 %2").arg(kind.name, kind.names);
        const bool isDisplay = ResourceFormat::DisplaySize::fromName(question.at(1)).isValid();
        if (kind.resolve == resolveDimension && !isDisplay)
            return QStringLiteral("\"%1\" is not a display size; use WxH, such as 800x480").arg(question.at(1));
        return QString();
    }
    const QString list = QStringLiteral("use one of: ") + known.join(QStringLiteral(", "));
    return QStringLiteral("cannot resolve \"%1\"; %2")
        .arg(question.value(0), Suggestions(known).advice(question.value(0), list));
}

bool resolve(const QString& directory, const QStringList& question)
{
    for (const Kind& kind : kinds()) {
        if (kind.name != question.constFirst())
            continue;
        const Resources resources(directory);
        const bool isFound = kind.resolve(resources, question.mid(1));
        const QString similar = isFound ? QString() : lookupSuggestion(resources, question);
        if (!similar.isNull())
            print("did you mean:", similar);
        return isFound;
    }
    return false;
}

} // namespace ResourceCheck
