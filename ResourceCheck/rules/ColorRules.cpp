#include "ResourceCheck/Project.h"
#include "ResourceCheck/Suggestions.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Contrast.h"
#include "ResourceFormat/Themes.h"

#include <QSet>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;
namespace Contrast = ResourceFormat::Contrast;

namespace
{

void checkColors(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.colors;
    for (const IniEntry& entry : file.effectiveEntries()) {
        if (!QColor::isValidColor(entry.value)) {
            report(file.valuePlace(entry),
                   QStringLiteral("\"%1\" is not a color that QML accepts; use #rrggbb, #aarrggbb or an SVG color name")
                       .arg(entry.value));
        }
    }
}

const IniEntry* findColor(const IniFile& file, const QString& name)
{
    return file.content().find(name.section(QLatin1Char('/'), 0, 0), name.section(QLatin1Char('/'), 1));
}

void checkPair(const IniFile& file, const IniEntry& text, const IniEntry& background, const Report& report)
{
    if (!QColor::isValidColor(text.value) || !QColor::isValidColor(background.value))
        return;
    const IniEntry* behind = file.content().find(background.group, Contrast::backgroundKey());
    const QColor behindColor(behind == nullptr || behind == &background ? QString() : behind->value);
    const double ratio = Contrast::ratio(QColor(text.value), QColor(background.value),
                                         behindColor.isValid() ? behindColor : QColor(Qt::white));
    if (ratio < Contrast::minimumAA) {
        report(file.valuePlace(text),
               QStringLiteral("%1/%2 on %3/%4: contrast %5 is below the WCAG AA minimum of %6:1; make one of the "
                              "colors lighter or darker")
                   .arg(text.group, text.key, background.group, background.key, Contrast::text(ratio),
                        QString::number(Contrast::minimumAA)));
    }
}

void checkContrast(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.colors;
    for (const IniEntry& text : file.effectiveEntries()) {
        const IniEntry* background = file.content().find(text.group, Contrast::backgroundKeyOf(text.key));
        if (background != nullptr)
            checkPair(file, text, *background, report);
    }
    const Suggestions suggestions(ResourceNames(project.resources, ResourceKind::Color).names());
    for (const auto& [textName, backgroundName] : project.contrastPairs) {
        const IniEntry* text = findColor(file, textName);
        const IniEntry* background = findColor(file, backgroundName);
        if (text != nullptr && background != nullptr) {
            checkPair(file, *text, *background, report);
        } else {
            const QString& missing = text == nullptr ? textName : backgroundName;
            report({file.path()},
                   QStringLiteral("the color %1 of a contrast option is missing; %2")
                       .arg(missing, suggestions.advice(missing, QStringLiteral("add it or correct the option"))));
        }
    }
}

void checkThemes(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.colors;
    const QStringList groups = file.content().groups();
    QSet<QPair<QString, QString>> reported;
    for (const QString& owner : groups) {
        const QStringList keys = file.content().keys(owner);
        for (const QString& group : groups) {
            const QStringList others = file.content().keys(group);
            for (const QString& key : ResourceFormat::Themes::areThemes(keys, others) ? keys : QStringList()) {
                if (others.contains(key) || reported.contains({group, key}))
                    continue;
                reported.insert({group, key});
                report(file.place(file.content().find(group, others.constFirst())->line),
                       QStringLiteral("%1/%2 is missing, but %3/%2 exists; add it").arg(group, key, owner));
            }
        }
    }
}

} // namespace

QVector<Rule> colorRules()
{
    return {
        {QStringLiteral("color-invalid"), Severity::Error,
         QStringLiteral("QML shows black, or nothing, in place of a value that is not a color."), checkColors,
         QStringLiteral(
             "Write `#rrggbb`, `#aarrggbb` or an SVG color name. Instead of `rgba(0, 0, 0, 0.5)`, write `#80000000`.")},
        {QStringLiteral("color-contrast"), Severity::Warning,
         QStringLiteral("Many people cannot read text whose contrast is below the minimum of WCAG 2, level AA."),
         checkContrast,
         QStringLiteral("Make one of the colors lighter or darker. Compared are `TextOnNAME` with `NAME`, any other "
                        "text with `Background`, and the pairs of the option `contrast`. Disabled text is exempt.")},
        {QStringLiteral("color-missing"), Severity::Error,
         QStringLiteral("In a theme without the color the lookup returns an empty text, which QML shows as black."),
         checkThemes,
         QStringLiteral("Add the color to the group. Groups that share more than half of their keys count as themes "
                        "of each other.")},
    };
}

} // namespace ResourceCheck
