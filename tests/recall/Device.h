#pragma once

#include "QmlHost/TarnisUi.h"

#include <QPointer>
#include <QStringList>

class QQuickItem;

namespace Gallery
{
class FrontEnd;
}

namespace Tests
{

/// Runs a front end on a resource directory as the gallery does, in a window that is never shown, and gets it into each
/// state that a script can reach.
class Device
{
public:
    /// Waits for the resources.
    explicit Device(const QString& resources);

    /// What is logged, without duplicates. Each page is shown on each display and in each icon context and language,
    /// and each button is clicked. The pages are the values of `screens` that the root object gives for its property
    /// `screen`, or those of the sample.
    QStringList records(const QString& file);

private:
    void visit(Gallery::FrontEnd& frontEnd, const QString& screen);
    void clickButtons(Gallery::FrontEnd& frontEnd, const QString& screen);
    void click(Gallery::FrontEnd& frontEnd, const QPointer<QQuickItem>& button);
    static void settle(Gallery::FrontEnd& frontEnd);

    TarnisUi ui;
};

} // namespace Tests
