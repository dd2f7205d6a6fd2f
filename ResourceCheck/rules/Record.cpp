#include "ResourceCheck/rules/Record.h"

#include <QRegularExpression>

namespace ResourceCheck
{

namespace
{

const QString library = QStringLiteral("library");
const QString platform = QStringLiteral("platform");
const QString service = QStringLiteral("service");
const QString qt = QStringLiteral("Qt");

Record announced(const QString& origin, const char* text, const QString& rules)
{
    return {origin, QString::fromUtf8(text), rules.split(QLatin1Char(' '))};
}

Record unknowable(const QString& origin, const char* text, const QString& reason)
{
    return {origin, QString::fromUtf8(text), {}, reason};
}

QVector<Record> libraryRecords()
{
    const QString ofService = QStringLiteral("depends on the service and the bus");
    const QString ofScreen = QStringLiteral("depends on the screen");
    return {
        announced(library, "No color for key \"…\" in group \"…\" !",
                  QStringLiteral("color-missing qml-unknown-color")),
        announced(library, "Unknown font group: \"…\"", QStringLiteral("font-family-missing qml-unknown-font")),
        announced(library, "No font size for key \"…\" in font group \"…\"",
                  QStringLiteral("font-size-missing qml-unknown-font")),
        announced(library, "Expected font size for key \"…\" in font group \"…\" to be a number!",
                  QStringLiteral("font-size-invalid")),
        announced(library, "Unknown alias name ( \"…\" )", QStringLiteral("qml-unknown-icon")),
        announced(library, "Unknown context ( \"defaultContext\" )", QStringLiteral("icon-no-default icon-json")),
        announced(library, "Icon file \"…\" does not exist",
                  QStringLiteral("icon-missing-file icon-outside icon-case")),
        announced(library, "Failed to parse icon mapping json! Invalid json.",
                  QStringLiteral("icon-json file-unreadable file-link")),
        announced(library, "Failed to parse icon mapping json! Ivalid json.", QStringLiteral("icon-json")),
        announced(library, "Failed to parse icon mapping json! Expected relative path to be of type string.",
                  QStringLiteral("icon-json")),
        announced(library, "Unable to create object icon base path directory does not exist",
                  QStringLiteral("file-unreadable file-link")),
        unknowable(library, "Unable to get primary screen!", ofScreen),
        unknowable(library, "Cannot read pointer to primary screen!", ofScreen),
        unknowable(library, "Fetching … failed with the follwoing error: \"…\"",
                   QStringLiteral("depends on the service and the bus; faults of the files have records of their own")),
        unknowable(library, "Expected path to … to be of type string!", ofService),
        unknowable(library, "Unable to extract supported display sizes from dbus reply", ofService),
    };
}

QVector<Record> platformRecords()
{
    const QString iniSyntax = QStringLiteral("ini-syntax");
    const QString textJson = QStringLiteral("text-json");
    return {
        announced(platform, "Cannot read \"…\": …", QStringLiteral("file-unreadable file-link text-no-fallback")),
        announced(platform, "…:…: duplicate key \"…\" in group \"…\"; the last value is used", iniSyntax),
        announced(platform, "…:…: group line without a closing \"]\"; entries up to the next group are ignored",
                  iniSyntax),
        announced(platform, "…:…: expected a comment, [group] or key=value, found \"…\"", iniSyntax),
        announced(platform, "…:…: empty key name", iniSyntax),
        announced(platform, "…:…: bytes that are not valid UTF-8 text", iniSyntax),
        unknowable(platform, "Unknown text codec \"…\", reading as UTF-8", QStringLiteral("depends on the host")),
        announced(platform, ".json:…:…: …", textJson),
        announced(platform, ".json: not a JSON object", textJson),
        announced(platform, ".json: \"…\" is not a string", textJson),
    };
}

QVector<Record> serviceRecords()
{
    return {
        announced(service, "tarnis-module: left out: …",
                  QStringLiteral("dimension-name file-link file-unreadable ini-syntax")),
    };
}

QVector<Record> qtRecords()
{
    return {
        announced(qt, "Unable to assign [undefined] to …",
                  QStringLiteral("dimension-missing qml-unknown-dimension qml-unknown-text")),
        announced(qt, "TypeError: Property '…' of object … is not a function", QStringLiteral("qml-call")),
        announced(qt, "Error: Insufficient arguments", QStringLiteral("qml-call")),
        announced(qt, "TypeError: Cannot call method '…' of undefined", QStringLiteral("qml-unknown-text")),
        announced(qt, "QFont::setPointSizeF: Point size <= 0 (…), must be greater than 0",
                  QStringLiteral("font-size-invalid qml-unknown-font")),
        announced(qt, "QPen::setWidthF: Setting a pen width that is out of range", QStringLiteral("svg-ignored")),
        announced(qt, "QML Image: Cannot open: …", QStringLiteral("icon-missing-file icon-outside icon-case")),
        announced(qt, "QML Image: Error decoding: …", QStringLiteral("icon-unreadable svg-syntax")),
        announced(qt, "qt.svg: …", QStringLiteral("svg-image svg-path svg-reference svg-structure svg-syntax")),
    };
}

} // namespace

QString Record::pattern() const
{
    return QRegularExpression::escape(text).replace(QStringLiteral("\\…"), QStringLiteral(".*"));
}

const QVector<Record>& allRecords()
{
    static const QVector<Record> records = libraryRecords() + platformRecords() + serviceRecords() + qtRecords();
    return records;
}

} // namespace ResourceCheck
