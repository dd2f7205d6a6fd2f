#pragma once

#include "tests/recall/Mutation.h"
#include "tests/support/TestProcess.h"

#include <QDir>
#include <QFile>

namespace Tests
{

/// Has a fault in the files of a directory for as long as it lives.
struct Fault {
    Fault(const QString& changedDirectory, const Mutation& mutation)
        : directory(changedDirectory)
    {
        for (auto file = mutation.files.begin(); file != mutation.files.end(); ++file) {
            const QString path = directory.filePath(file.key());
            contents.insert(path, readFile(path));
            if (file->isNull())
                QFile::remove(path);
            else
                writeFile(path, *file);
        }
    }
    ~Fault()
    {
        for (auto file = contents.begin(); file != contents.end(); ++file)
            writeFile(file.key(), *file);
    }

    static QByteArray readFile(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QDir directory;
    QMap<QString, QByteArray> contents; // without the fault, by their paths
};

} // namespace Tests
