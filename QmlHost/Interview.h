#pragma once

#include "QmlHost/Answers.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <functional>

namespace QmlHost
{

/// The five questions to the Tarnis module and its answers.
class Interview
{
public:
    Interview();

    /// The bus name of the service.
    static QString busName();

    /// The sentence for a service that does not answer.
    static QString silence();

    /// Asks the questions. It blocks for 5 s at most: after a call without a reply, the other questions are not asked.
    /// Neither are they once `isStopRequested` returns true.
    void run(const std::function<bool()>& isStopRequested);

    /// Whether every call had a reply.
    bool isReached() const;

    /// What has been answered. `includesIconFiles` tells whether changes of the icon files matter.
    Answers answers(bool includesIconFiles) const;

    /// Why not everything has been answered; empty if it has.
    QString problem() const;

private:
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector iconProvider;
    bool hasReplies = true;
    QString colorFile;
    QString fontFile;
    QList<QPair<QSize, QString>> displaySizes;
    QString iconFolder;
    QString mappingTable;
};

} // namespace QmlHost
