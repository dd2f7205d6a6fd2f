#include "Gallery/compare/LiveComparison.h"

#include "Gallery/LastGoodSource.h"

#include <QUrl>
#include <QVariantMap>

namespace Gallery
{

namespace
{

QVariantMap sideMap(const std::optional<Snapshot::Value>& value)
{
    if (!value)
        return {};
    // The URL changes with the content, because Qt Quick keeps pictures by URL.
    QUrl url = value->path.isEmpty() ? QUrl() : QUrl::fromLocalFile(value->path);
    if (!url.isEmpty())
        url.setFragment(value->identity);
    return {{QStringLiteral("text"), value->text}, {QStringLiteral("url"), url}};
}

QVariantMap changeMap(const Comparison::Change& change)
{
    return {
        {QStringLiteral("kind"), Comparison::title(change.kind)},
        {QStringLiteral("type"), Comparison::title(change.type())},
        {QStringLiteral("name"), change.key.name},
        {QStringLiteral("variant"), change.key.variant},
        {QStringLiteral("difference"), change.difference()},
        {QStringLiteral("old"), sideMap(change.oldValue)},
        {QStringLiteral("new"), sideMap(change.newValue)},
    };
}

bool matches(const Comparison::Change& change, const QString& search)
{
    QStringList texts{change.key.name, change.key.variant, Comparison::title(change.type())};
    for (const auto& value : {change.oldValue, change.newValue})
        texts.append(value ? value->text : QString());
    return texts.join(QLatin1Char('\n')).contains(search, Qt::CaseInsensitive);
}

bool isAnswered(const TarnisUi& ui)
{
    return ui.isReady() || !ui.problem().isEmpty();
}

} // namespace

LiveComparison::LiveComparison(const TarnisUi& shownUi, const QString& oldDirectoryPath)
    : newUi(shownUi)
    , oldPath(oldDirectoryPath)
    , oldUi(std::make_unique<LastGoodSource>(TarnisUi::directory(oldDirectoryPath)))
{
    pool.setMaxThreadCount(1);
    qRegisterMetaType<Comparison>();
    connect(this, &LiveComparison::compared, this, &LiveComparison::take, Qt::QueuedConnection);
    for (const TarnisUi* ui : {&newUi, static_cast<const TarnisUi*>(&oldUi)}) {
        connect(ui, &TarnisUi::answersChanged, this, &LiveComparison::start);
        connect(ui, &TarnisUi::problemChanged, this, &LiveComparison::start);
    }
    connect(&oldUi, &TarnisUi::problemChanged, this, &LiveComparison::problemChanged);
    start();
}

int LiveComparison::revision() const
{
    return currentRevision;
}

QString LiveComparison::oldDirectory() const
{
    return oldPath;
}

QString LiveComparison::verdict() const
{
    return currentRevision == 0 ? QString() : comparison.verdict();
}

QString LiveComparison::problem() const
{
    return oldUi.problem();
}

QStringList LiveComparison::kinds() const
{
    QStringList names;
    for (const Comparison::Change& change : comparison.changes()) {
        const QString name = Comparison::title(change.kind);
        if (names.isEmpty() || names.constLast() != name)
            names.append(name);
    }
    return names;
}

QVariantList LiveComparison::changes(const QString& kind, const QString& search) const
{
    QVariantList maps;
    for (const Comparison::Change& change : comparison.changes()) {
        if (Comparison::title(change.kind) == kind && matches(change, search))
            maps.append(changeMap(change));
    }
    return maps;
}

QString LiveComparison::family(const QString& fontName, bool isNew) const
{
    return (isNew ? comparison.newSide() : comparison.oldSide()).fontFamily(fontName);
}

void LiveComparison::start()
{
    isOutdated = isRunning;
    if (isRunning || !isAnswered(newUi) || !isAnswered(oldUi))
        return;
    isRunning = true;
    const auto compare = [this, oldAnswers = oldUi.answers(), oldProblem = oldUi.problem(),
                          newAnswers = newUi.answers(), newProblem = newUi.problem()] {
        Q_EMIT compared(Comparison(Snapshot(oldAnswers, oldProblem), Snapshot(newAnswers, newProblem)));
    };
    pool.start(compare);
}

void LiveComparison::take(const Comparison& fresh)
{
    isRunning = false;
    comparison = fresh;
    ++currentRevision;
    Q_EMIT changed();
    if (isOutdated)
        start();
}

} // namespace Gallery
