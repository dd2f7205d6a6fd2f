#include "Gallery/compare/ReportCommand.h"

#include "Gallery/ExitStatus.h"
#include "Gallery/LastGoodSource.h"
#include "Gallery/Options.h"
#include "Gallery/compare/Report.h"
#include "Gallery/frontend/LivePreview.h"

#include <QSaveFile>

#include <cstdio>

namespace Gallery
{

namespace
{

Snapshot snapshot(const QString& directory)
{
    return Snapshot::of(std::make_unique<LastGoodSource>(TarnisUi::directory(directory)));
}

} // namespace

int writeReport(const Options& options)
{
    const Comparison comparison(snapshot(options.oldDirectory), snapshot(options.directory));
    for (const QString& problem : comparison.oldSide().problems() + comparison.newSide().problems())
        fail(Incomplete, problem);
    const ScreenComparison screens =
        ScreenComparison::of(options.oldDirectory, options.directory,
                             {LivePreview::urlOf(options.qmlFile), options.context, options.language});
    const Report report(comparison, screens, options.oldDirectory, options.directory);
    const QByteArray html = report.html();
    QSaveFile file(options.report);
    if (!file.open(QIODevice::WriteOnly) || file.write(html) != html.size() || !file.commit())
        return fail(Incomplete, QStringLiteral("cannot write %1: %2").arg(options.report, file.errorString()));
    std::printf("%s\n", qPrintable(comparison.verdict()));
    if (!comparison.isComplete())
        return Incomplete;
    return comparison.changes().isEmpty() ? Success : Failure;
}

} // namespace Gallery
