#pragma once

#include "Gallery/LastGoodFiles.h"
#include "QmlHost/Source.h"

#include <QHash>
#include <QSize>

#include <memory>

namespace Gallery
{

/// Passes on the answers of another source, with copies of the files: a file with a fault is shown as it was before,
/// and `problem` names the file, the line and the reason until it is repaired. Files that the other source cannot offer
/// are named, too. Icon files are not copied.
class LastGoodSource : public QmlHost::Source
{
    Q_OBJECT

public:
    explicit LastGoodSource(std::unique_ptr<QmlHost::Source> originalSource);

    void start() override;
    void ask() override;

Q_SIGNALS:
    /// The files in the directory `originals` have been read, and `copies` is the directory with their copies. It comes
    /// after each answered(), which may tell of the same answers as before.
    void filesRead(const QString& originals, const QString& copies);

private:
    void passOn(const QmlHost::Answers& answers, const QString& problem);
    void copyDimensions(QmlHost::Answers& answers, QStringList& faults);
    void copyTexts(QmlHost::Answers& answers, QStringList& faults);
    void judgeMappingTable(QmlHost::Answers& answers, QStringList& faults);

    QmlHost::Source* const original; // child of this object
    LastGoodFiles files;
    QString directory;               // of the resources; empty if it is not known
    QHash<QString, QSize> originals; // the dimension files that have been good, by path
    QString judgedTable;             // the last mapping table
    QStringList tableFaults;
    QString goodTable; // the last mapping table without faults; null if there was none
};

} // namespace Gallery
