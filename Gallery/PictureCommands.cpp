#include "Gallery/PictureCommands.h"

#include "Gallery/ExitStatus.h"
#include "Gallery/Options.h"
#include "Gallery/Screenshots.h"
#include "Gallery/Session.h"
#include "Gallery/compare/ContactSheet.h"
#include "Gallery/compare/FrontEndPictures.h"

namespace Gallery
{

namespace
{

// The exit status after pictures were taken, which depends on what was logged meanwhile.
int judgeLookups(Session& session)
{
    const QStringList failedLookups = session.log.takeNew();
    if (!failedLookups.isEmpty())
        return fail(Failure, QStringLiteral("lookups failed:\n") + failedLookups.join(QLatin1Char('\n')));
    return session.ui.problem().isEmpty() ? Success : Failure;
}

} // namespace

int PictureCommands::takeScreenshots(QQuickWindow& window, Session& session, const Options& options)
{
    Screenshots screenshots(window, session);
    const bool isTaken = options.screenshot.isEmpty() ? screenshots.takeAll(options.screenshotDirectory)
                                                      : screenshots.take(options.screenshot);
    if (!isTaken) {
        return fail(Failure,
                    QStringLiteral("cannot draw or write %1").arg(options.screenshot + options.screenshotDirectory));
    }
    if (!session.preview.problem().isEmpty())
        return fail(Failure, session.preview.problem());
    for (const QString& picture : screenshots.incomplete())
        fail(Incomplete, QStringLiteral("%1: the page was not complete after 10 s").arg(picture));
    const int status = judgeLookups(session);
    return status == Success && !screenshots.incomplete().isEmpty() ? Incomplete : status;
}

int PictureCommands::takeContactSheet(Session& session, const Options& options)
{
    session.log.takeNew(); // what comes after it is of lookups
    FrontEndPictures frontEnd(session.ui, LivePreview::urlOf(options.qmlFile));
    const QString resources = options.directory.isEmpty() ? QStringLiteral("the service") : options.directory;
    ContactSheet sheet(QStringLiteral("%1 with %2").arg(session.preview.name(), resources),
                       session.catalogs.dimensions.displays(), session.catalogs.icons.contexts(),
                       session.ui.languages());
    const QImage picture =
        sheet.draw([&frontEnd](const QString& display, const QString& context, const QString& language) {
            return frontEnd.draw(display, context, language);
        });
    if (!frontEnd.problem().isEmpty())
        return fail(Failure, frontEnd.problem());
    if (!picture.save(options.contactSheet, "PNG"))
        return fail(Failure, QStringLiteral("cannot draw or write %1").arg(options.contactSheet));
    return judgeLookups(session);
}

} // namespace Gallery
