#include "ResourceCheck/qml/TextMethod.h"

#include <QRegularExpression>
#include <QSet>

namespace ResourceCheck
{

namespace
{

QmlPattern withPieces(const QmlPattern& text, QString (*change)(const QString&))
{
    QmlPattern result = text;
    for (QString& piece : result.pieces)
        piece = change(piece);
    return result;
}

// Replaces all places of the marker with the lowest number, for example `%1`.
QmlPattern withArgument(const QmlPattern& text, const QmlPattern& argument)
{
    static const QRegularExpression marker(QStringLiteral("%L?([0-9]{1,2})"));
    int lowest = -1;
    for (auto found = marker.globalMatch(text.pieces.first()); found.hasNext();) {
        const int number = found.next().captured(1).toInt();
        lowest = lowest < 0 ? number : qMin(lowest, number);
    }
    if (!text.isLiteral() || lowest < 0)
        return text.isLiteral() ? text : QmlPattern::anything(text.place);
    const QRegularExpression place(QStringLiteral("%L?0?%1(?![0-9])").arg(lowest));
    QmlPattern result = QmlPattern::literal(QString(), text.place);
    const QStringList parts = text.pieces.first().split(place);
    for (int index = 0; index < parts.size(); ++index)
        result = (index == 0 ? result : result + argument) + QmlPattern::literal(parts.at(index), text.place);
    return result;
}

QmlPattern replaced(const QmlPattern& text, const QmlPattern& before, const QmlPattern& after, bool isEverywhere)
{
    if (!text.isLiteral() || !before.isLiteral())
        return QmlPattern::anything(text.place);
    QString rest = text.pieces.first();
    QmlPattern result = QmlPattern::literal(QString(), text.place);
    int position = before.text().isEmpty() ? -1 : rest.indexOf(before.text());
    while (position >= 0) {
        result = result + QmlPattern::literal(rest.left(position), text.place) + after;
        rest.remove(0, position + before.text().size());
        position = isEverywhere ? rest.indexOf(before.text()) : -1;
    }
    return result + QmlPattern::literal(rest, text.place);
}

// slice(), substring(), substr() and charAt() with numbers that are known.
QmlPattern part(const QString& method, const QmlPattern& text, const QVector<QmlPattern>& arguments)
{
    bool isFirstNumber = false;
    bool isSecondNumber = true;
    int first = arguments.value(0, QmlPattern::literal(QString())).text().toInt(&isFirstNumber);
    const int size = text.text().size();
    int second = method == QLatin1String("charAt") ? first + 1 : size;
    if (arguments.size() > 1)
        second = arguments.at(1).text().toInt(&isSecondNumber);
    if (!text.isLiteral() || !isFirstNumber || !isSecondNumber)
        return QmlPattern::anything(text.place);
    const bool countsFromEnd = method == QLatin1String("slice") || method == QLatin1String("substr");
    first = first < 0 && countsFromEnd ? qMax(0, size + first) : qMax(0, first);
    second = second < 0 && countsFromEnd ? size + second : second;
    if (method == QLatin1String("substr") && arguments.size() > 1)
        second += first;
    return {{text.text().mid(first, qMax(0, second - first))}, text.place, text.isUncertain, true};
}

} // namespace

bool TextMethod::isKnown(const QString& method)
{
    static const QSet<QString> methods{
        QStringLiteral("toLowerCase"),       QStringLiteral("toUpperCase"), QStringLiteral("toLocaleLowerCase"),
        QStringLiteral("toLocaleUpperCase"), QStringLiteral("trim"),        QStringLiteral("toString"),
        QStringLiteral("valueOf"),           QStringLiteral("arg"),         QStringLiteral("replace"),
        QStringLiteral("replaceAll"),        QStringLiteral("concat"),      QStringLiteral("slice"),
        QStringLiteral("substring"),         QStringLiteral("charAt"),      QStringLiteral("substr"),
    };
    return methods.contains(method);
}

QmlPattern TextMethod::apply(const QString& method, const QmlPattern& text, const QVector<QmlPattern>& arguments)
{
    const QmlPattern anything = QmlPattern::anything(text.place);
    if (method.endsWith(QLatin1String("LowerCase")))
        return withPieces(text, [](const QString& piece) { return piece.toLower(); });
    if (method.endsWith(QLatin1String("UpperCase")))
        return withPieces(text, [](const QString& piece) { return piece.toUpper(); });
    if (method == QLatin1String("trim"))
        return text.isLiteral() ? QmlPattern::literal(text.text().trimmed(), text.place) : anything;
    if (method == QLatin1String("toString") || method == QLatin1String("valueOf"))
        return text;
    if (method == QLatin1String("arg"))
        return withArgument(text, arguments.value(0, anything));
    if (method.startsWith(QLatin1String("replace")))
        return replaced(text, arguments.value(0, anything), arguments.value(1, anything),
                        method == QLatin1String("replaceAll"));
    if (method != QLatin1String("concat"))
        return part(method, text, arguments);
    QmlPattern sum = text;
    for (const QmlPattern& argument : arguments)
        sum = sum + argument;
    return sum;
}

} // namespace ResourceCheck
