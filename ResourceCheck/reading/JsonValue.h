#pragma once

#include "ResourceCheck/reading/Place.h"

#include <QVector>

namespace ResourceCheck
{

/// A value of a JSON text with its place, and with its name if it is a member of an object.
/// Of members with the same name Qt keeps one, in a large object not always the last. All of them are listed here.
struct JsonValue {
    enum class Type { Object, String, Other };

    Type type = Type::Other;
    QString name;
    Place namePlace;
    Place place;
    QString text;               // of a string
    QVector<JsonValue> members; // of an object, in the order of the file
};

} // namespace ResourceCheck
