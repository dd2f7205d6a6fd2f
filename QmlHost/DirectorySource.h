#pragma once

#include "QmlHost/DirectoryWatcher.h"
#include "QmlHost/Source.h"

namespace QmlHost
{

/// Reads a resource directory by the rules of the service, without a bus, and follows its changes. The directory need
/// not exist yet.
class DirectorySource : public Source
{
    Q_OBJECT

public:
    /// A relative path starts at the working directory at the time of the call.
    explicit DirectorySource(const QString& directoryPath);
    ~DirectorySource() override;

    void start() override;
    void ask() override;

private:
    const QString path;
    DirectoryWatcher watcher;
    bool hasAnswered = false;
};

} // namespace QmlHost
