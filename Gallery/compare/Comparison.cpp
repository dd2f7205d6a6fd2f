#include "Gallery/compare/Comparison.h"

#include <QCollator>

#include <algorithm>
#include <cmath>

namespace Gallery
{

namespace
{

std::optional<Snapshot::Value> find(const Snapshot::Values& values, const Snapshot::Key& key)
{
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::make_optional(*found);
}

// Whether the values look different. Nobody knows how a file looks that cannot be read.
bool isDifferent(const Comparison::Change& change)
{
    for (const auto& value : {change.oldValue, change.newValue}) {
        if (value && !value->fault.isEmpty())
            return false;
    }
    return change.type() != Comparison::Changed || change.oldValue->identity != change.newValue->identity;
}

QString signedNumber(double number)
{
    return (number < 0 ? QStringLiteral("−") : QStringLiteral("+")) + QString::number(std::abs(number));
}

void sort(QVector<Comparison::Change>& changes)
{
    QCollator collator{QLocale(QLocale::English)}; // the order does not depend on the user's language
    collator.setNumericMode(true);
    std::stable_sort(changes.begin(), changes.end(),
                     [&](const Comparison::Change& left, const Comparison::Change& right) {
                         const int order = collator.compare(left.key.name, right.key.name);
                         return order != 0 ? order < 0 : collator.compare(left.key.variant, right.key.variant) < 0;
                     });
}

} // namespace

Comparison::Type Comparison::Change::type() const
{
    if (!oldValue)
        return Added;
    return newValue ? Changed : Removed;
}

QString Comparison::Change::difference() const
{
    if (type() != Changed)
        return QString();
    bool areNumbers[] = {false, false};
    const double oldNumber = oldValue->identity.toDouble(&areNumbers[0]);
    const double newNumber = newValue->identity.toDouble(&areNumbers[1]);
    if ((kind != Snapshot::Dimension && kind != Snapshot::Font) || !areNumbers[0] || !areNumbers[1])
        return QString();
    const double pixels = newNumber - oldNumber;
    const double percent = std::round(1000 * pixels / std::abs(oldNumber)) / 10;
    return signedNumber(pixels) + QStringLiteral(" px")
        + (oldNumber == 0 ? QString() : QStringLiteral(" (%1 %)").arg(signedNumber(percent)));
}

Comparison::Comparison(const Snapshot& oldSnapshot, const Snapshot& newSnapshot)
    : oldState(oldSnapshot)
    , newState(newSnapshot)
{
    for (const Snapshot::Kind kind : Snapshot::kinds())
        compare(kind);
}

const Snapshot& Comparison::oldSide() const
{
    return oldState;
}

const Snapshot& Comparison::newSide() const
{
    return newState;
}

const QVector<Comparison::Change>& Comparison::changes() const
{
    return allChanges;
}

QVector<Comparison::Change> Comparison::changes(Snapshot::Kind kind, Type type) const
{
    QVector<Change> found;
    std::copy_if(allChanges.begin(), allChanges.end(), std::back_inserter(found),
                 [&](const Change& change) { return change.kind == kind && change.type() == type; });
    return found;
}

QString Comparison::verdict() const
{
    QStringList counts;
    for (const Type type : types()) {
        const auto isOfType = [type](const Change& change) { return change.type() == type; };
        const auto count = std::count_if(allChanges.begin(), allChanges.end(), isOfType);
        if (count > 0)
            counts.append(QStringLiteral("%1 %2").arg(count).arg(title(type).toLower()));
    }
    const QString changed =
        counts.isEmpty() ? QStringLiteral("Nothing has changed") : counts.join(QStringLiteral(", "));
    const QString incomplete = isComplete() ? QString() : QStringLiteral("; not everything could be read and compared");
    return changed + incomplete + QLatin1Char('.');
}

bool Comparison::isComplete() const
{
    return oldState.problems().isEmpty() && newState.problems().isEmpty();
}

const QVector<Comparison::Type>& Comparison::types()
{
    static const QVector<Type> all{Changed, Added, Removed};
    return all;
}

QString Comparison::title(Snapshot::Kind kind)
{
    static const QMap<Snapshot::Kind, QString> titles{
        {Snapshot::Display, QStringLiteral("Displays")},     {Snapshot::Language, QStringLiteral("Languages")},
        {Snapshot::Color, QStringLiteral("Colors")},         {Snapshot::Font, QStringLiteral("Fonts")},
        {Snapshot::Dimension, QStringLiteral("Dimensions")}, {Snapshot::Icon, QStringLiteral("Icons")},
        {Snapshot::Text, QStringLiteral("Texts")},
    };
    return titles.value(kind);
}

QString Comparison::variantTitle(Snapshot::Kind kind)
{
    static const QMap<Snapshot::Kind, QString> titles{
        {Snapshot::Dimension, QStringLiteral("Display")},
        {Snapshot::Icon, QStringLiteral("Context")},
        {Snapshot::Text, QStringLiteral("Language")},
    };
    return titles.value(kind);
}

QString Comparison::title(Type type)
{
    static const QMap<Type, QString> titles{
        {Changed, QStringLiteral("Changed")},
        {Added, QStringLiteral("Added")},
        {Removed, QStringLiteral("Removed")},
    };
    return titles.value(type);
}

void Comparison::compare(Snapshot::Kind kind)
{
    const Snapshot::Values& oldValues = oldState.values(kind);
    Snapshot::Values all = newState.values(kind);
    for (auto value = oldValues.begin(); value != oldValues.end(); ++value)
        all.insert(value.key(), *value);
    QVector<Change> found;
    for (auto value = all.begin(); value != all.end(); ++value) {
        const Snapshot::Key& key = value.key();
        const Change change{kind, key, find(oldValues, key), find(newState.values(kind), key)};
        if (oldState.isReadable(kind, key.variant) && newState.isReadable(kind, key.variant) && isDifferent(change))
            found.append(change);
    }
    sort(found);
    allChanges += found;
}

} // namespace Gallery
