#pragma once

#include "ResourceCheck/reading/JsonValue.h"

namespace ResourceCheck
{

/// A file that must contain one JSON object, as Qt's reader understands it, with the places of its content.
class JsonFile
{
public:
    /// A file that cannot be read, or does not contain a JSON object, has an empty root object.
    explicit JsonFile(const QString& path);

    /// The file as if it had this content.
    JsonFile(const QString& path, const QByteArray& content);

    const QString& path() const { return filePath; }

    /// Why the file cannot be read; null if it can.
    const QString& problem() const { return readProblem; }

    /// What is wrong with the text and what to do, and where; null if the text is a JSON object.
    const QString& fault() const { return jsonFault; }
    const Place& faultPlace() const { return placeOfFault; }

    /// Whether the file can be read and contains a JSON object.
    bool isSound() const { return readProblem.isNull() && jsonFault.isNull(); }

    const JsonValue& root() const { return rootValue; }

private:
    void parse(const QByteArray& content);

    QString filePath;
    QString readProblem;
    QString jsonFault;
    Place placeOfFault;
    JsonValue rootValue;
};

} // namespace ResourceCheck
