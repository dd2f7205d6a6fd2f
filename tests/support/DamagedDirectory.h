#pragma once

#include "tests/support/ContentDamage.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace Tests
{

/// A copy of a resource directory with one to three damages, which depend on the seed and the number only.
class DamagedDirectory
{
public:
    struct Entry {
        enum Kind { None, File, Link, Folder, Pipe } kind = None;
        QByteArray content{}; // of a file, or the target of a link

        bool operator==(const Entry& other) const { return kind == other.kind && content == other.content; }
    };
    /// By the paths in the directory. Paths are bytes, because a damaged one may be invalid in every encoding.
    using Entries = QMap<QByteArray, Entry>;

    static Entries read(const QString& directory)
    {
        Entries entries;
        for (QDirIterator files(directory, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("cannot read %s", qPrintable(file.fileName()));
            entries.insert(file.fileName().mid(directory.size() + 1).toUtf8(), {Entry::File, file.readAll()});
        }
        return entries;
    }

    DamagedDirectory(const Entries& sample, quint32 seed, quint32 number)
        : entries(sample)
        , random(seed + 1000003U * number)
    {
        static constexpr void (DamagedDirectory::*kinds[])(){
            &DamagedDirectory::swapFiles,     &DamagedDirectory::copyFile,
            &DamagedDirectory::removeFile,    &DamagedDirectory::removeFolder,
            &DamagedDirectory::renameFile,    &DamagedDirectory::renameIcon,
            &DamagedDirectory::replaceByLink, &DamagedDirectory::replaceBySpecialFile};
        for (int count = random.bounded(1, 4); count > 0 && !entries.isEmpty(); --count) {
            if (random.bounded(3) == 0)
                (this->*kinds[random.bounded(static_cast<int>(std::size(kinds)))])();
            else
                damageContent();
        }
    }

    /// Changes a directory that contains other entries, so that it contains these.
    void replace(const QString& directory, const Entries& others) const
    {
        for (auto other = others.begin(); other != others.end(); ++other) {
            if (!(entries.value(other.key()) == *other))
                remove(QFile::encodeName(directory) + '/' + other.key());
        }
        QDir().mkpath(directory);
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            if (!(others.value(entry.key()) == *entry))
                write(QFile::encodeName(directory) + '/' + entry.key(), *entry);
        }
    }

    const Entries& content() const { return entries; }

private:
    // With the folders that it leaves empty.
    static void remove(QByteArray path)
    {
        std::remove(path.constData());
        do
            path.truncate(path.lastIndexOf('/'));
        while (rmdir(path.constData()) == 0);
    }

    static void write(const QByteArray& path, const Entry& entry)
    {
        QDir().mkpath(QFile::decodeName(path.left(path.lastIndexOf('/'))));
        if (entry.kind == Entry::Link && symlink(entry.content.constData(), path.constData()) == 0)
            return;
        if (entry.kind == Entry::Folder)
            mkdir(path.constData(), S_IRWXU);
        if (entry.kind == Entry::Pipe)
            mkfifo(path.constData(), S_IRWXU);
        FILE* const file = entry.kind == Entry::File ? std::fopen(path.constData(), "wb") : nullptr;
        if (file == nullptr)
            return;
        std::fwrite(entry.content.constData(), 1, static_cast<size_t>(entry.content.size()), file);
        std::fclose(file);
    }

    // Every kind of resource is as likely as the others, although most files are icons.
    QByteArray anyFile()
    {
        static const QByteArrayList beginnings{"colors", "fonts", "dimensions/", "icons/mapping", "icons/", "texts/"};
        const QByteArray& beginning = beginnings.at(random.bounded(beginnings.size()));
        QByteArrayList candidates;
        for (const QByteArray& path : entries.keys()) {
            if (path.startsWith(beginning))
                candidates.append(path);
        }
        return candidates.isEmpty() ? entries.firstKey() : candidates.at(random.bounded(candidates.size()));
    }

    // Another name in the same folder.
    QByteArray strangePath(const QByteArray& path)
    {
        static const QByteArrayList names{"800x480.INI",  "0x0.ini",        "-1x5.ini", "99999999999x1.ini",
                                          "800x480 .ini", "x.ini",          ".ini",     "de-AT.json",
                                          "DE.json",      "deutsch.json",   ".json",    "en.json.bak",
                                          "de_AT_x.json", "a#b.svg",        "a%20.svg", "a?b.svg",
                                          "\xc3\xa4.svg", "\xff.svg",       "a\nb.svg", "a\"b.svg",
                                          ".a.svg",       "mapping.n.json", "a.png",    QByteArray(240, 'x') + ".svg"};
        return path.left(path.lastIndexOf('/') + 1) + names.at(random.bounded(names.size()));
    }

    void damageContent()
    {
        Entry& entry = entries[anyFile()];
        if (entry.kind == Entry::File)
            entry.content = ContentDamage(random).applied(entry.content);
    }

    void swapFiles() { std::swap(entries[anyFile()], entries[anyFile()]); }

    void copyFile()
    {
        const QByteArray path = anyFile();
        entries.insert(strangePath(path), entries.value(path));
    }

    void removeFile() { entries.remove(anyFile()); }

    // There may be a file in its place.
    void removeFolder()
    {
        const QByteArray path = anyFile();
        const QByteArray folder = path.contains('/') ? path.left(path.lastIndexOf('/')) : path;
        for (const QByteArray& other : entries.keys()) {
            if (other.startsWith(folder))
                entries.remove(other);
        }
        if (random.bounded(2) == 0)
            entries.insert(folder, {Entry::File, "a"});
    }

    void renameFile()
    {
        const QByteArray path = anyFile();
        entries.insert(strangePath(path), entries.take(path));
    }

    // Renames an icon in the mapping table, too.
    void renameIcon()
    {
        const QByteArray path = "icons/day/home.svg";
        const QByteArray other = strangePath(path);
        if (!entries.contains(path) || !entries.contains("icons/mapping.json"))
            return;
        entries.insert(other, entries.take(path));
        const QByteArray written = QByteArray(other.mid(6)).replace('"', "\\\"").replace('\n', "\\n");
        entries["icons/mapping.json"].content.replace("day/home.svg", written);
    }

    void replaceByLink()
    {
        static const QByteArrayList targets{".",          "..",         "../colors.ini", "no-file", "/dev/null",
                                            "../outside", "colors.ini", "home.svg",      "en.json", "../../colors.ini"};
        const QByteArray path = anyFile();
        const QByteArray itself = path.mid(path.lastIndexOf('/') + 1);
        entries[path] = {Entry::Link, random.bounded(5) == 0 ? itself : targets.at(random.bounded(targets.size()))};
    }

    void replaceBySpecialFile()
    {
        entries[anyFile()] = random.bounded(2) == 0 ? Entry{Entry::Folder, {}} : Entry{Entry::Pipe, {}};
    }

    Entries entries;
    QRandomGenerator random;
};

} // namespace Tests
