#include "Gallery/PseudoLanguage.h"

#include "Gallery/TextPart.h"
#include "ResourceFormat/Language.h"
#include "ResourceFormat/RegularFile.h"

#include <QDir>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace Gallery::PseudoLanguage
{

namespace
{

constexpr double growth = 0.35;
constexpr QChar rightToLeftMark(0x200F);
constexpr QChar rightToLeftOverride(0x202E);
constexpr QChar popDirection(0x202C);

struct Kind {
    QString name;
    QString label;
    QString (*translate)(const QString& text);
};

const QVector<Kind>& kinds()
{
    static const QVector<Kind> all{
        {QStringLiteral("en_XA"), QStringLiteral("en_XA: longer, accented"), lengthened},
        {QStringLiteral("ar_XB"), QStringLiteral("ar_XB: right to left"), mirrored},
    };
    return all;
}

QChar accented(QChar letter)
{
    // Fonts of Latin languages have most of these.
    static const QString plain = QStringLiteral("ABCDEFGHIJKLMNOPRSTUVWXYZabcdefghijklmnoprstuvwxyz");
    static const QString accents = QStringLiteral("ÅḂÇĎÉḞĜĤÎĴĶĹṀÑÖṖŔŠŤÛṼŴẊÝŽåḃçďéḟĝĥîĵķĺṁñöṗŕšťûṽŵẋýž");
    const int index = plain.indexOf(letter);
    return index < 0 ? letter : accents.at(index);
}

int countLetters(const QVector<TextPart>& parts, int& characters)
{
    int letters = 0;
    for (const TextPart& part : parts) {
        if (part.isFixed)
            continue;
        characters += part.text.size();
        letters +=
            static_cast<int>(std::count_if(part.text.begin(), part.text.end(), [](QChar c) { return c.isLetter(); }));
    }
    return letters;
}

QByteArray translated(const QJsonObject& texts, const Kind& kind)
{
    QJsonObject translations;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (text.value().isString())
            translations.insert(text.key(), kind.translate(text.value().toString()));
    }
    return QJsonDocument(translations).toJson();
}

// A file with the same content is left alone, so that nobody reads it again.
void save(const QString& path, const QByteArray& content)
{
    QString reason;
    if (ResourceFormat::RegularFile::readAll(path, reason) == content && reason.isNull())
        return;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size())
        file.commit();
}

} // namespace

QStringList names()
{
    QStringList all;
    for (const Kind& kind : kinds())
        all.append(kind.name);
    return all;
}

QString label(const QString& name)
{
    for (const Kind& kind : kinds()) {
        if (kind.name == name)
            return kind.label;
    }
    return name;
}

QString lengthened(const QString& text)
{
    if (text.isEmpty())
        return text;
    const QVector<TextPart> parts = TextPart::of(text);
    int characters = 0;
    const int letters = countLetters(parts, characters);
    const int extra = std::max(0, qRound(growth * characters) - 2); // the brackets are two
    int done = 0;
    QString result(QLatin1Char('['));
    for (const TextPart& part : parts) {
        if (part.isFixed) {
            result += part.text;
            continue;
        }
        for (const QChar character : part.text) {
            const int copies = character.isLetter() ? extra * (done + 1) / letters - extra * done / letters : 0;
            done += character.isLetter() ? 1 : 0;
            result += QString(1 + copies, accented(character));
        }
    }
    return result + QLatin1Char(']');
}

QString mirrored(const QString& text)
{
    if (text.isEmpty())
        return text;
    // Every line starts with a mark, because its first letter may be that of a value or of no language.
    QString result(rightToLeftMark);
    for (const TextPart& part : TextPart::of(text)) {
        if (!part.isFixed)
            result += rightToLeftOverride + part.text + popDirection;
        else if (part.text.startsWith(QLatin1Char('<')) || part.text == QLatin1String("\n"))
            result += part.text + rightToLeftMark;
        else
            result += part.text;
    }
    return result;
}

QStringList writeFiles(const QString& textFolder, const QStringList& realFiles)
{
    using namespace ResourceFormat;
    const QDir folder(textFolder);
    const QString english = folder.filePath(Language::fileName(Language::secondFallback()));
    if (!realFiles.contains(english))
        return {};
    QString reason;
    const QJsonObject texts = QJsonDocument::fromJson(RegularFile::readAll(english, reason)).object();
    QStringList paths;
    for (const Kind& kind : kinds()) {
        // The language that the pseudo language is a variant of is empty, so that nobody reports its file as missing.
        for (const QString& language : Language::fallbackChain(kind.name)) {
            const QString path = folder.filePath(Language::fileName(language));
            if (realFiles.contains(path))
                continue;
            save(path, language == kind.name ? translated(texts, kind) : QByteArrayLiteral("{}"));
            paths.append(path);
        }
    }
    return paths;
}

} // namespace Gallery::PseudoLanguage
