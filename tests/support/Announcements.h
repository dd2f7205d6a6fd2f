#pragma once

#include "ResourceCheck/rules/Record.h"
#include "tests/support/Device.h"

#include <QJsonArray>

#include <algorithm>

namespace Tests
{

/// What the checker has reported in a resource directory.
class Announcements
{
public:
    /// `findings` is the output of the checker as JSON.
    Announcements(const QString& directory, const QJsonArray& findings)
        : root(directory)
    {
        for (const QJsonValue finding : findings) {
            const QString path = finding["path"].toString();
            list.append({finding["rule"].toString(), path, finding["message"].toString(), canonical(path),
                         finding["severity"].toString() == "error"});
        }
    }

    /// The files in which one of the rules has found something.
    QSet<QString> filesWith(const QStringList& rules) const
    {
        QSet<QString> files;
        for (const Found& entry : list) {
            if (rules.contains(entry.rule))
                files.insert(entry.canonicalPath);
        }
        return files;
    }

    /// The records that are not announced. Each needs a finding of one of its rules; several of the same file need as
    /// many, except of an icon, which Qt complains of more than once.
    QStringList missing(const QVector<DeviceRecord>& records) const
    {
        QMap<QPair<QStringList, QString>, QVector<DeviceRecord>> groups;
        QStringList texts;
        for (const DeviceRecord& record : records) {
            if (record.text.startsWith("Fetching "))
                texts += isAnswerAnnounced(record.text) ? QString() : record.text;
            else
                groups[{rulesOf(record.text), record.file}].append(record);
        }
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            const auto& [rules, file] = group.key();
            const QString canonicalFile = canonical(file);
            const auto announces = [&, &names = rules, &path = file](const Found& entry) {
                return names.contains(entry.rule) && isAbout(entry, path, canonicalFile);
            };
            const auto count = std::count_if(list.begin(), list.end(), announces);
            const bool isIcon = file.startsWith(root + "/icons/");
            if (count >= (isIcon ? 1 : group->size()))
                continue;
            for (const DeviceRecord& record : *group)
                texts += isUnreadable(record.source) ? QString() : record.text + " (" + record.file + ')';
        }
        texts.removeAll(QString());
        return texts;
    }

private:
    struct Found {
        QString rule;
        QString path;
        QString message;
        QString canonicalPath;
        bool isError;
    };

    static QString canonical(const QString& path) { return QFileInfo(path).canonicalFilePath(); }

    static QStringList rulesOf(const QString& record)
    {
        // The patterns take too long on the thousands of brackets that a record can quote.
        constexpr int enough = 300;
        const QString text = record.size() > 2 * enough ? record.left(enough) + record.right(enough) : record;
        static const QVector<QPair<QRegularExpression, QStringList>> patterns = [] {
            QVector<QPair<QRegularExpression, QStringList>> all;
            for (const ResourceCheck::Record& known : ResourceCheck::allRecords()) {
                if (!known.rules.isEmpty())
                    all.append({QRegularExpression(known.pattern()), known.rules});
            }
            return all;
        }();
        const auto found = std::find_if(patterns.begin(), patterns.end(),
                                        [&text](const auto& pattern) { return pattern.first.match(text).hasMatch(); });
        return found == patterns.end() ? QStringList() : found->second;
    }

    // `canonicalFile` is empty if there is no such file.
    bool isAbout(const Found& entry, const QString& file, const QString& canonicalFile) const
    {
        const QString icon = '"' + file.mid(root.size() + 7) + '"'; // as in the mapping table
        return file.isEmpty() || entry.path == file || entry.message.contains(icon)
            || (!canonicalFile.isEmpty() && entry.canonicalPath == canonicalFile);
    }

    // Names in files that cannot be read are not reported one by one.
    bool isUnreadable(const QString& file) const
    {
        return !file.isEmpty() && std::any_of(list.begin(), list.end(), [&](const Found& entry) {
            return entry.path == file && (entry.rule == "file-unreadable" || entry.rule == "icon-json");
        });
    }

    // The service names each file that it does not offer. There must be an error in each, or of a file in it.
    bool isAnswerAnnounced(const QString& text) const
    {
        static const QRegularExpression named("(/[^;]*?)(?=: | does not | is not | contains )");
        int count = 0;
        for (auto match = named.globalMatch(text); match.hasNext(); ++count) {
            const QString file = match.next().captured(1);
            const auto announces = [&file](const Found& entry) {
                return entry.isError && (entry.path + '/').startsWith(file + '/');
            };
            if (std::none_of(list.begin(), list.end(), announces))
                return false;
        }
        return count > 0;
    }

    const QString root;
    QVector<Found> list;
};

} // namespace Tests
