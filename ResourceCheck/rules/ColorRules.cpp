#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceFormat/Contrast.h"

namespace
{

constexpr double leastContrast = 4.5; // WCAG 2, level AA

void checkColors(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.colors;
    for (const IniEntry& entry : file.effectiveEntries()) {
        if (!QColor::isValidColor(entry.value)) {
            report(file.valuePlace(entry),
                   QStringLiteral("\"%1\" is no colour that QML reads: #rgb, #rrggbb, #aarrggbb or a name of SVG")
                       .arg(entry.value));
        }
    }
}

// TextOnNAME stands on NAME, any other text on the background of its group. Nobody has to read what is disabled.
QString backgroundKeyOf(const QString& key)
{
    const QString onPrefix = QStringLiteral("TextOn");
    if (key.startsWith(onPrefix))
        return key.mid(onPrefix.size());
    const bool isText = key.startsWith(QStringLiteral("Text")) && !key.endsWith(QStringLiteral("Disabled"));
    return isText ? QStringLiteral("Background") : QString();
}

const IniEntry* findColor(const IniFile& file, const QString& name)
{
    return file.content().find(name.section(QLatin1Char('/'), 0, 0), name.section(QLatin1Char('/'), 1));
}

void checkPair(const IniFile& file, const IniEntry& text, const IniEntry& background, const Report& report)
{
    if (!QColor::isValidColor(text.value) || !QColor::isValidColor(background.value))
        return;
    const double ratio = ResourceFormat::Contrast::ratio(QColor(text.value), QColor(background.value));
    if (ratio < leastContrast) {
        report(file.valuePlace(text),
               QStringLiteral("contrast of %1/%2 on %3/%4 is %5, readable is %6 or more")
                   .arg(text.group, text.key, background.group, background.key)
                   .arg(ratio, 0, 'f', 2)
                   .arg(leastContrast));
    }
}

void checkContrast(const Project& project, const Report& report)
{
    const IniFile& file = project.resources.colors;
    for (const IniEntry& text : file.effectiveEntries()) {
        const IniEntry* background = file.content().find(text.group, backgroundKeyOf(text.key));
        if (background != nullptr)
            checkPair(file, text, *background, report);
    }
    for (const auto& [textName, backgroundName] : project.contrastPairs) {
        const IniEntry* text = findColor(file, textName);
        const IniEntry* background = findColor(file, backgroundName);
        if (text != nullptr && background != nullptr)
            checkPair(file, *text, *background, report);
        else
            report({file.path()},
                   QStringLiteral("holds no %1, whose contrast is to be checked")
                       .arg(text == nullptr ? textName : backgroundName));
    }
}

} // namespace

QVector<Rule> colorRules()
{
    return {
        {QStringLiteral("color-invalid"), Severity::Error,
         QStringLiteral("QML shows black, or nothing, for a text that it cannot read as a colour."), checkColors},
        {QStringLiteral("color-contrast"), Severity::Warning,
         QStringLiteral("A text with less contrast than WCAG 2 AA asks for cannot be read by many people."),
         checkContrast},
    };
}
