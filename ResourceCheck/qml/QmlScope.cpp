#include "ResourceCheck/qml/QmlScope.h"

#include <QSet>

namespace ResourceCheck
{

namespace
{

QString lastName(const QString& path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('.')) + 1);
}

} // namespace

QmlScope::QmlScope(const QHash<QString, QString>& handlerNames, const QHash<QString, QStringList>& boundPaths)
    : handlers(handlerNames)
    , bindings(boundPaths)
{
}

QString QmlScope::meaning(const QString& path)
{
    QString whole = meaningOfHandler(path);
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    if (!whole.isEmpty() || dot < 0)
        return whole;
    const QString owner = meaningOfHandler(path.left(dot));
    return owner.isEmpty() ? owner : owner + path.mid(dot);
}

// If several names match the end of the path, the longest one is used.
QString QmlScope::meaningOfHandler(const QString& path)
{
    for (int dot = -1; dot < path.size();) {
        const auto handler = handlers.constFind(path.mid(dot + 1));
        if (handler != handlers.constEnd())
            return *handler;
        const int next = path.indexOf(QLatin1Char('.'), dot + 1);
        dot = next < 0 ? path.size() : next;
    }
    return meaningOfBinding(lastName(path));
}

// Empty if one name refers to different things in different places of the file.
QString QmlScope::meaningOfBinding(const QString& name)
{
    const auto bound = bindings.constFind(name);
    if (bound == bindings.constEnd())
        return {};
    const auto found = known.constFind(name);
    if (found != known.constEnd())
        return *found;
    known.insert(name, QString()); // ends the recursion if the name is bound to itself
    QSet<QString> meanings;
    for (const QString& path : *bound) {
        if (lastName(path) != name) // otherwise the name is only passed on
            meanings.insert(meaning(path));
    }
    QString common = meanings.size() == 1 ? *meanings.constBegin() : QString();
    known.insert(name, common);
    return common;
}

} // namespace ResourceCheck
