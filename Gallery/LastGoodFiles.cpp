#include "Gallery/LastGoodFiles.h"

#include "ResourceFormat/IniParser.h"
#include "ResourceFormat/RegularFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTextCodec>

namespace Gallery
{

using namespace ResourceFormat;

namespace
{

QStringList iniFaults(const QString& path, const QByteArray& content)
{
    QStringList faults;
    const IniParser parser(content, *QTextCodec::codecForName("UTF-8"));
    for (const IniParser::Fault& fault : parser.faults())
        faults.append(QStringLiteral("%1:%2: %3").arg(path).arg(fault.line).arg(fault.reason));
    return faults;
}

QStringList textFaults(const QString& path, const QByteArray& content)
{
    const QString syntaxFault = LastGoodFiles::jsonFault(path, content);
    if (!syntaxFault.isNull())
        return {syntaxFault};
    QStringList faults;
    const QJsonObject texts = QJsonDocument::fromJson(content).object();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (!text.value().isString())
            faults.append(QStringLiteral("%1: \"%2\" is not a string").arg(path, text.key()));
    }
    return faults;
}

// A file with the same content is left alone, so that nobody reads it again.
bool save(const QString& path, const QByteArray& content)
{
    QString reason;
    if (RegularFile::readAll(path, reason) == content && reason.isNull())
        return true;
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
}

} // namespace

Directory LastGoodFiles::copies() const
{
    return Directory(directory.path());
}

QString LastGoodFiles::update(const QString& path, const QString& copy, QStringList& faults)
{
    QString reason;
    const QByteArray content = RegularFile::readAll(path, reason);
    QStringList found;
    if (!reason.isNull())
        found.append(QStringLiteral("%1: %2").arg(path, reason));
    else
        found = copy.endsWith(QLatin1String(".ini")) ? iniFaults(path, content) : textFaults(path, content);
    faults += found;
    if (found.isEmpty())
        goodCopies.insert(copy);
    else if (goodCopies.contains(copy))
        return copy;
    return save(copy, content) ? copy : path;
}

QString LastGoodFiles::jsonFault(const QString& path, const QByteArray& content)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error == QJsonParseError::NoError)
        return document.isObject() ? QString() : QStringLiteral("%1:1: not a JSON object").arg(path);
    const QByteArray before = content.left(error.offset);
    const auto column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("%1:%2:%3: %4").arg(path).arg(before.count('\n') + 1).arg(column).arg(error.errorString());
}

} // namespace Gallery
