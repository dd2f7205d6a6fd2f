#pragma once

#include "Gallery/Catalog.h"
#include "Gallery/MessageLog.h"
#include "Gallery/UiResources.h"
#include "Gallery/View.h"

namespace Gallery
{

/// The QML singletons of the module `Tarnis`. Only one session may exist at a time.
struct Session {
    /// Asks the service; see ServiceAnswers::ask().
    explicit Session(const QString& language);

    /// Makes the singletons known to every QML engine of the process. The session must outlive the engines.
    void publish();

    MessageLog log;
    UiResources resources;
    Catalog catalog;
    View view;
};

} // namespace Gallery
