#include "Gallery/compare/ScreenSection.h"

#include "Gallery/compare/Html.h"

namespace Gallery::ScreenSection
{

namespace
{

QString paragraph(const QString& text)
{
    return Html::element(QStringLiteral("p"), QString(), text) + QLatin1Char('\n');
}

QString figure(const QString& side, const QString& display, const QImage& picture)
{
    const QString caption = Html::element(QStringLiteral("figcaption"), QString(), side);
    const QString content = picture.isNull()
        ? paragraph(QStringLiteral("This display is not supported."))
        : Html::image(picture, QStringLiteral("%1 front end on %2").arg(side, display), QStringLiteral("screen"));
    return QStringLiteral("<figure>%1%2</figure>\n").arg(caption, content);
}

} // namespace

QString html(const ScreenComparison& screens)
{
    QString content;
    for (const QString& problem : screens.problems)
        content += paragraph(problem);
    for (const ScreenComparison::Change& change : screens.changes) {
        content += Html::element(QStringLiteral("h3"), QString(), change.display);
        content += QStringLiteral("<div class=\"screens\">\n%1%2</div>\n")
                       .arg(figure(QStringLiteral("Old"), change.display, change.oldPicture),
                            figure(QStringLiteral("New"), change.display, change.newPicture));
    }
    if (!screens.sameDisplays.isEmpty()) {
        content += paragraph(
            QStringLiteral("The front end looks the same on %1.").arg(screens.sameDisplays.join(QStringLiteral(", "))));
    }
    return QStringLiteral("<section id=\"screens\">\n<h2>On the screen</h2>\n%1</section>\n").arg(content);
}

} // namespace Gallery::ScreenSection
