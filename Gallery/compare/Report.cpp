#include "Gallery/compare/Report.h"

#include "Gallery/compare/Html.h"
#include "Gallery/compare/ScreenSection.h"

#include <QFile>

namespace Gallery
{

namespace
{

constexpr int rowsPerTable = 200; // browsers lay out a table as a whole, but only the tables that are visible

bool hasDifference(const Comparison::Change& change)
{
    return change.type() == Comparison::Changed
        && (change.kind == Snapshot::Dimension || change.kind == Snapshot::Font || change.kind == Snapshot::Icon);
}

QString header(const QString& text)
{
    return Html::element(QStringLiteral("th"), QStringLiteral(R"( scope="col")"), text);
}

QString cell(const QString& html)
{
    return QStringLiteral("<td>%1</td>").arg(html);
}

} // namespace

Report::Report(const Comparison& resourceComparison, const ScreenComparison& screenComparison,
               const QString& oldDirectory, const QString& newDirectory)
    : comparison(resourceComparison)
    , screens(screenComparison)
    , oldName(oldDirectory)
    , newName(newDirectory)
    , picture(resourceComparison)
{
}

QByteArray Report::html() const
{
    QFile file(QStringLiteral(":/compare/report.html"));
    file.open(QIODevice::ReadOnly);
    QString sections = ScreenSection::html(screens);
    for (const Snapshot::Kind kind : Snapshot::kinds())
        sections += section(kind);
    const QString page = QString::fromUtf8(file.readAll());
    return page
        .arg(Html::escaped(oldName), Html::escaped(newName), comparison.verdict(), summary(), problems(), sections)
        .toUtf8();
}

QString Report::summary() const
{
    QString rows;
    for (const Snapshot::Kind kind : Snapshot::kinds()) {
        QString cells;
        int sum = 0;
        for (const Comparison::Type type : Comparison::types()) {
            const int count = comparison.changes(kind, type).size();
            sum += count;
            cells += Html::element(QStringLiteral("td"), QString(), QString::number(count));
        }
        const QString title = Comparison::title(kind);
        const bool isReadable = comparison.oldSide().isReadable(kind) && comparison.newSide().isReadable(kind);
        if (!isReadable)
            cells = QStringLiteral(R"(<td colspan="3">not readable, not compared</td>)");
        const QString link = sum > 0 ? QStringLiteral(R"(<a href="#%1">%2</a>)").arg(title.toLower(), title) : title;
        rows += QStringLiteral("<tr><th scope=\"row\">%1</th>%2</tr>\n").arg(link, cells);
    }
    return rows;
}

QString Report::problems() const
{
    QString items;
    for (const Snapshot* side : {&comparison.oldSide(), &comparison.newSide()}) {
        const QString name = side == &comparison.oldSide() ? QStringLiteral("Old: ") : QStringLiteral("New: ");
        for (const QString& problem : side->problems())
            items += Html::element(QStringLiteral("li"), QString(), name + problem) + QLatin1Char('\n');
    }
    if (items.isEmpty())
        return QString();
    return QStringLiteral(
               "<section class=\"problems\">\n<h2>Not readable</h2>\n<p>The comparison leaves out what could "
               "not be read.</p>\n<ul>\n%1</ul>\n</section>\n")
        .arg(items);
}

QString Report::section(Snapshot::Kind kind) const
{
    QString groups;
    for (const Comparison::Type type : Comparison::types()) {
        const QVector<Comparison::Change> changes = comparison.changes(kind, type);
        if (changes.isEmpty())
            continue;
        groups += QStringLiteral("<h3>%1 <span class=\"count\">%2</span></h3>\n")
                      .arg(Comparison::title(type), QString::number(changes.size()));
        for (int first = 0; first < changes.size(); first += rowsPerTable)
            groups += table(changes.mid(first, rowsPerTable));
    }
    if (groups.isEmpty())
        return QString();
    const QString scale = kind != Snapshot::Dimension || picture.pixelsPerBarPixel() == 1
        ? QString()
        : QStringLiteral("<p>The bars are drawn at a scale of 1 : %1.</p>\n").arg(picture.pixelsPerBarPixel());
    const QString title = Comparison::title(kind);
    return QStringLiteral("<section id=\"%1\">\n<h2>%2</h2>\n%3%4</section>\n")
        .arg(title.toLower(), title, scale, groups);
}

QString Report::table(const QVector<Comparison::Change>& changes) const
{
    const Snapshot::Kind kind = changes.constFirst().kind;
    QString headers = header(QStringLiteral("Name"));
    if (!Comparison::variantTitle(kind).isEmpty())
        headers += header(Comparison::variantTitle(kind));
    headers += header(QStringLiteral("Old")) + header(QStringLiteral("New"));
    if (hasDifference(changes.constFirst()))
        headers += header(QStringLiteral("Difference"));
    QString rows;
    for (const Comparison::Change& change : changes)
        rows += row(change);
    return QStringLiteral("<table class=\"changes\">\n<thead><tr>%1</tr></thead>\n<tbody>\n%2</tbody>\n</table>\n")
        .arg(headers, rows);
}

QString Report::row(const Comparison::Change& change) const
{
    QString cells = Html::element(QStringLiteral("th"), QStringLiteral(R"( scope="row")"), change.key.name);
    if (!Comparison::variantTitle(change.kind).isEmpty())
        cells += Html::element(QStringLiteral("td"), QString(), change.key.variant);
    const QString sides[] = {picture.html(change, false), picture.html(change, true)};
    cells += cell(sides[0]) + cell(sides[1]);
    if (hasDifference(change)) {
        const QString words = sides[0] == sides[1] ? QStringLiteral("none at this size") : change.difference();
        cells += Html::element(QStringLiteral("td"), QStringLiteral(R"( class="number")"), words);
    }
    return QStringLiteral("<tr>%1</tr>\n").arg(cells);
}

} // namespace Gallery
