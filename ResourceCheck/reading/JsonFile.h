#pragma once

#include "ResourceCheck/Finding.h"

#include <QVector>

/// A value of a JSON text with its place, and with its name where it is a member of an object.
/// Of several members under one name Qt keeps one, in a large object not always the last; all of them are here.
struct JsonValue {
    enum class Type { Object, String, Other };

    Type type = Type::Other;
    QString name;
    Place namePlace;
    Place place;
    QString text;               // of a string
    QVector<JsonValue> members; // of an object, in the order of the file
};

/// A file that is to hold one JSON object, as Qt's reader takes it, with the places of what it holds.
class JsonFile
{
public:
    /// A file that cannot be read, or holds no JSON object, is like one with an empty object.
    explicit JsonFile(const QString& path);

    const QString& path() const { return filePath; }

    /// Why the file cannot be read; null if it can.
    const QString& problem() const { return readProblem; }

    /// What is wrong with the text, and where; null if nothing is.
    const QString& fault() const { return jsonFault; }
    const Place& faultPlace() const { return placeOfFault; }

    /// Whether the file could be read and is one JSON object. What is not brings no further findings.
    bool isSound() const { return readProblem.isNull() && jsonFault.isNull(); }

    const JsonValue& root() const { return rootValue; }

private:
    QString filePath;
    QString readProblem;
    QString jsonFault;
    Place placeOfFault;
    JsonValue rootValue;
};
