#pragma once

#include "Gallery/LastGoodFiles.h"
#include "QmlHost/Source.h"

#include <memory>

namespace Gallery
{

/// Passes on the answers of another source, with copies of the files: a file with a fault is shown as it was before,
/// and `problem` names the file, the line and the reason. Icon files are not copied.
class LastGoodSource : public QmlHost::Source
{
    Q_OBJECT

public:
    explicit LastGoodSource(std::unique_ptr<QmlHost::Source> originalSource);

    void start() override;
    void ask() override;

private:
    void passOn(const QmlHost::Answers& answers, const QString& problem);
    void copyDimensions(QmlHost::Answers& answers, QStringList& faults);
    void copyTexts(QmlHost::Answers& answers, QStringList& faults);

    QmlHost::Source* const original; // child of this object
    LastGoodFiles files;
};

} // namespace Gallery
