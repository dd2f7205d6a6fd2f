#include "tests/recall/Mutation.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace Tests
{

namespace
{

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesBelow(const QString& directory, const QStringList& patterns)
{
    QStringList files;
    for (QDirIterator item(directory, patterns, QDir::Files, QDirIterator::Subdirectories); item.hasNext();)
        files.append(QDir(directory).relativeFilePath(item.next()));
    files.sort();
    return files;
}

// A name with another end, another begin, and other upper and lower case.
QStringList misspelled(const QString& name)
{
    const QChar first = name.at(0);
    const QString otherCase = (first.isUpper() ? first.toLower() : first.toUpper()) + name.mid(1);
    return {name + "Zz", 'x' + name, otherCase == name ? name + '0' : otherCase};
}

QVector<Mutation> withoutLines(const QString& path, const QByteArray& content)
{
    QVector<Mutation> mutations;
    const QList<QByteArray> lines = content.split('\n');
    QByteArray group;
    for (int index = 0; index < lines.size(); ++index) {
        const QByteArray& line = lines.at(index);
        group = line.startsWith('[') ? line : group;
        if (!line.contains('=') || line.startsWith(';'))
            continue;
        QList<QByteArray> rest = lines;
        rest.removeAt(index);
        const QString name = QString::fromUtf8(group + line.left(line.indexOf('=')));
        mutations.append({path + ' ' + name, {{path, rest.join('\n')}}});
    }
    return mutations;
}

// Members of the object and of the objects in it.
QVector<Mutation> withoutMembers(const QString& path, const QByteArray& content)
{
    QVector<Mutation> mutations;
    const QJsonObject all = QJsonDocument::fromJson(content).object();
    const auto add = [&](const QString& name, const QJsonObject& rest) {
        mutations.append({path + ' ' + name, {{path, QJsonDocument(rest).toJson()}}});
    };
    for (const QString& name : all.keys()) {
        QJsonObject rest = all;
        rest.remove(name);
        add(name, rest);
        for (const QString& member : all[name].toObject().keys()) {
            QJsonObject inner = all[name].toObject();
            inner.remove(member);
            rest[name] = inner;
            add(name + ' ' + member, rest);
        }
    }
    return mutations;
}

// Removes what the files of a folder have in common: the dimensions of all displays, the texts of all languages.
QVector<Mutation> withoutCommonEntries(const QString& folder, const QVector<Mutation>& ofFiles)
{
    QMap<QString, Mutation> common;
    for (const Mutation& mutation : ofFiles) {
        const QString path = mutation.files.firstKey();
        if (path.startsWith(folder + '/')) {
            Mutation& all = common[mutation.name.mid(path.size() + 1)];
            all.name = folder + mutation.name.mid(path.size());
            all.files.insert(path, mutation.files.first());
        }
    }
    return QVector<Mutation>::fromList(common.values());
}

// Removes the key from all themes.
QVector<Mutation> withoutColors(const QByteArray& content)
{
    QVector<Mutation> mutations;
    QStringList done;
    const QString text = QString::fromUtf8(content);
    static const QRegularExpression entry("^(\\w+=).*\n", QRegularExpression::MultilineOption);
    for (auto found = entry.globalMatch(text); found.hasNext();) {
        const QString key = found.next().captured(1);
        if (done.contains(key))
            continue;
        done.append(key);
        const QRegularExpression entries('^' + key + ".*\n", QRegularExpression::MultilineOption);
        mutations.append({"colors " + key.chopped(1), {{"colors.ini", QString(text).remove(entries).toUtf8()}}});
    }
    return mutations;
}

} // namespace

QVector<Mutation> misspellings(const QString& directory)
{
    static const QRegularExpression literal("(?<!import )(?<!from )\"([^\"\\n]+)\"");
    QVector<Mutation> mutations;
    for (const QString& path : filesBelow(directory, {"*.qml", "*.js", "*.mjs"})) {
        const QString code = QString::fromUtf8(readFile(directory + '/' + path));
        for (auto found = literal.globalMatch(code); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            const int line = code.left(match.capturedStart()).count('\n') + 1;
            for (const QString& name : misspelled(match.captured(1))) {
                const QString other = QString(code).replace(match.capturedStart(1), match.capturedLength(1), name);
                const QString change = QString(" \"%1\" as \"%2\" in line ").arg(match.captured(1), name);
                mutations.append({path + change + QString::number(line), {{path, other.toUtf8()}}});
            }
        }
    }
    return mutations;
}

QVector<Mutation> removals(const QString& directory)
{
    QVector<Mutation> mutations;
    for (const QString& path : filesBelow(directory, {"*.ini"}))
        mutations += withoutLines(path, readFile(directory + '/' + path));
    for (const QString& path : filesBelow(directory, {"*.json"}))
        mutations += withoutMembers(path, readFile(directory + '/' + path));
    mutations += withoutCommonEntries("dimensions", mutations) + withoutCommonEntries("texts", mutations);
    mutations += withoutColors(readFile(directory + "/colors.ini"));
    for (const QString& path : filesBelow(directory, {"*.svg"}))
        mutations.append({path, {{path, QByteArray()}}});
    return mutations;
}

} // namespace Tests
