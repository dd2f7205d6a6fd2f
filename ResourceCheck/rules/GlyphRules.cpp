#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <QRawFont>

#include <algorithm>

namespace ResourceCheck
{

using ResourceFormat::IniEntry;

namespace
{

QVector<QRawFont> configuredFonts(const Resources& resources)
{
    QVector<QRawFont> fonts;
    for (const IniEntry& entry : resources.fonts.effectiveEntries()) {
        if (entry.key == TarnisFontHandler::familyKey)
            fonts.append(QRawFont::fromFont(QFont(entry.value)));
    }
    return fonts;
}

// The characters that no font has, each once.
QString missingCharacters(const QString& text, const QVector<QRawFont>& fonts)
{
    QString missing;
    for (const uint code : text.toUcs4()) {
        const auto hasCharacter = [code](const QRawFont& font) { return font.supportsCharacter(code); };
        const QString character = QString::fromUcs4(&code, 1);
        if (QChar::isPrint(code) && !QChar::isSpace(code) && QChar::category(code) != QChar::Other_Format
            && !missing.contains(character) && std::none_of(fonts.begin(), fonts.end(), hasCharacter))
            missing += character;
    }
    return missing;
}

void checkCharacters(const Project& project, const Report& report)
{
    const QVector<QRawFont> fonts = configuredFonts(project.resources);
    if (fonts.isEmpty())
        return;
    for (const TextFile& file : project.resources.texts) {
        for (const JsonValue& text : file.texts) {
            const QString missing = missingCharacters(text.text, fonts);
            if (!missing.isEmpty()) {
                report(text.place,
                       QStringLiteral(
                           "no font family of fonts.ini has the characters \"%1\" of \"%2\"; use other characters "
                           "or another family")
                           .arg(missing, text.name));
            }
        }
    }
}

} // namespace

QVector<Rule> glyphRules()
{
    return {
        {QStringLiteral("text-glyph"), Severity::Off,
         QStringLiteral("Qt draws a character that the font family lacks in another font, or as a box."),
         checkCharacters,
         QStringLiteral(
             "Use other characters, or add a family that has them to `fonts.ini`. The rule is off because many "
             "devices have fonts for other scripts; turn it on if your device has only those of "
             "`fonts.ini`.")},
    };
}

} // namespace ResourceCheck
