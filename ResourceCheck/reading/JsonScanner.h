#pragma once

#include "ResourceCheck/reading/JsonValue.h"

#include <QStringView>

namespace ResourceCheck
{

/// Finds the places of the values in a JSON text that Qt's reader has accepted.
class JsonScanner
{
public:
    /// Both strings must outlive the scanner.
    JsonScanner(const QString& jsonText, const QString& filePath);

    JsonValue scan();

private:
    QChar current() const;
    Place place() const;
    void advance();
    void skipBlanks();
    void skipLiteral();
    void skipComma();
    void scanObject(JsonValue& object);
    void scanArray();
    QString scanString();
    static QString decoded(QStringView quoted);

    const QString& text;
    const QString& path;
    int position = 0;
    int line = 1;
    int lineBegin = 0;
};

} // namespace ResourceCheck
