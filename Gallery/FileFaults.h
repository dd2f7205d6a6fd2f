#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What is wrong with the content of one file of the resources, by the rules of its kind: file, line, reason and, where
/// it is known, remedy of each fault.
namespace Gallery::FileFaults
{

/// One of the functions below. `path` is for the messages.
using Finder = QStringList(const QString& path, const QByteArray& content);

Finder ofIni;
Finder ofTexts;
Finder ofMappingTable;

/// A mapping table, which must be a JSON object, without the members of a wrong type.
QString soundPart(const QString& mappingTable);

} // namespace Gallery::FileFaults
