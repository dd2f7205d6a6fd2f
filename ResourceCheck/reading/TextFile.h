#pragma once

#include "ResourceCheck/reading/JsonFile.h"

#include <QSet>
#include <QVector>

namespace ResourceCheck
{

/// The texts of one language.
struct TextFile {
    explicit TextFile(const QString& path);

    /// The URLs of all members, including those that are not strings.
    QSet<QString> urls() const;

    QString language; // from the name of the file
    JsonFile file;
    QVector<JsonValue> texts; // the members that are strings
};

} // namespace ResourceCheck
