#include "Gallery/compare/ScreenComparison.h"

#include "Gallery/LastGoodSource.h"
#include "Gallery/compare/FrontEndPictures.h"
#include "ResourceFormat/DisplaySize.h"

#include <QMap>

namespace Gallery
{

namespace
{

constexpr int answerMilliseconds = 10000;

using Size = QPair<int, int>; // width and height, which can be sorted
using Pictures = QMap<Size, QImage>;

Pictures drawAll(const QString& directory, const ScreenComparison::Look& look, QStringList& problems)
{
    TarnisUi ui(std::make_unique<LastGoodSource>(TarnisUi::directory(directory)));
    Pictures pictures;
    if (!ui.waitUntilReady(answerMilliseconds))
        return pictures; // the report tells the reason elsewhere
    FrontEndPictures frontEnd(ui, look.qmlFile);
    for (const auto& displaySize : ui.answers().displaySizes.value) {
        const QString display = ResourceFormat::DisplaySize::toName(displaySize.first);
        const QImage picture = frontEnd.draw(display, look.context, look.language);
        if (picture.isNull()) {
            problems.append(frontEnd.problem());
            break;
        }
        pictures.insert({displaySize.first.width(), displaySize.first.height()}, picture);
    }
    return pictures;
}

} // namespace

ScreenComparison ScreenComparison::of(const QString& oldDirectory, const QString& newDirectory, const Look& look)
{
    ScreenComparison comparison;
    if (!FrontEndPictures::canDraw()) {
        comparison.problems.append(QStringLiteral("There is no display to draw the front end for."));
        return comparison;
    }
    const Pictures oldPictures = drawAll(oldDirectory, look, comparison.problems);
    const Pictures newPictures = drawAll(newDirectory, look, comparison.problems);
    comparison.problems.removeDuplicates();
    Pictures all = oldPictures;
    for (auto picture = newPictures.begin(); picture != newPictures.end(); ++picture)
        all.insert(picture.key(), *picture);
    const QList<Size> sizes = all.keys();
    for (const Size& size : sizes) {
        const QString display = ResourceFormat::DisplaySize::toName({size.first, size.second});
        const Change change{display, oldPictures.value(size), newPictures.value(size)};
        if (change.oldPicture == change.newPicture)
            comparison.sameDisplays.append(display);
        else
            comparison.changes.append(change);
    }
    return comparison;
}

} // namespace Gallery
