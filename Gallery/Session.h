#pragma once

#include "Gallery/MessageLog.h"
#include "Gallery/View.h"
#include "Gallery/catalog/Catalogs.h"
#include "Gallery/compare/LiveComparison.h"
#include "Gallery/findings/Findings.h"
#include "Gallery/frontend/LivePreview.h"
#include "QmlHost/TarnisUi.h"

#include <memory>
#include <optional>

namespace Gallery
{

/// The QML singletons of the module `Tarnis.Gallery`. Only one session may exist at a time.
struct Session {
    /// Starts to ask the source.
    explicit Session(std::unique_ptr<QmlHost::Source> source);

    /// Waits for the first answer or the first problem, and for the first comparison, but not longer than this.
    void waitForSource(int milliseconds);

    /// Shows this QML file on the page Device instead of the sample front end. Call it before publish().
    void setFrontEnd(const QString& qmlFile);

    /// Adds a page that compares the resources with those of an older state. Call it before publish().
    void compareWith(const QString& oldDirectory);

    /// Makes the singletons known to the QML engine that is created next. The session must outlive the engine.
    void publish();

    MessageLog log;
    Findings findings;
    TarnisUi ui;
    Catalogs catalogs;
    View view;
    LivePreview preview;
    std::optional<LiveComparison> comparison;
};

} // namespace Gallery
