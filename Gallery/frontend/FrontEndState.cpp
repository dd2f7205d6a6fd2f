#include "Gallery/frontend/FrontEndState.h"

#include "Gallery/frontend/FrontEnd.h"
#include "Gallery/frontend/ObjectTree.h"

#include <QMetaProperty>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>

#include <private/qqmlproperty_p.h>
#include <private/qquickitem_p.h>

namespace Gallery
{

namespace
{

constexpr int mostPasses = 5;

bool isSimple(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QUrl:
    case QMetaType::QColor:
    case QMetaType::QDateTime:
        return true;
    default:
        return false;
    }
}

// Properties that the layout, the gallery or an input device changes.
bool isDerived(const QObject& object, const QString& name)
{
    static const QSet<QString> ofItems{QStringLiteral("x"),
                                       QStringLiteral("y"),
                                       QStringLiteral("width"),
                                       QStringLiteral("height"),
                                       QStringLiteral("position"),
                                       QStringLiteral("size"),
                                       QStringLiteral("implicitWidth"),
                                       QStringLiteral("implicitHeight"),
                                       QStringLiteral("down")};
    static const QSet<QString> ofWindows{QStringLiteral("visible"), QStringLiteral("visibility")};
    return ofItems.contains(name) || (object.isWindowType() && ofWindows.contains(name));
}

QVariant read(const QObject& object, const QMetaProperty& property)
{
    // The properties themselves include the state of the parent items.
    if (const auto* const item = qobject_cast<const QQuickItem*>(&object)) {
        if (qstrcmp(property.name(), "visible") == 0)
            return bool(QQuickItemPrivate::get(item)->explicitVisible);
        if (qstrcmp(property.name(), "enabled") == 0)
            return bool(QQuickItemPrivate::get(item)->explicitEnable);
    }
    return property.read(&object);
}

QHash<QString, QVariant> readAll(const QObject& object)
{
    QHash<QString, QVariant> values;
    if (object.inherits("QQuickAbstractAnimation"))
        return values;
    const QMetaObject& type = *object.metaObject();
    const int first = object.isWindowType() ? QQuickWindow::staticMetaObject.propertyCount() : 0;
    for (int index = first; index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        const QString name = QString::fromLatin1(property.name());
        const bool isState = property.isWritable() && !property.isEnumType();
        const bool isVariant = property.userType() == QMetaType::QVariant;
        if (!isState || isDerived(object, name) || !(isVariant || isSimple(property.userType())))
            continue;
        const QVariant value = read(object, property);
        if (isSimple(value.userType()))
            values.insert(name, value);
    }
    return values;
}

} // namespace

FrontEndState::FrontEndState(FrontEnd& ownFrontEnd)
    : frontEnd(ownFrontEnd)
{
}

void FrontEndState::observe()
{
    const auto objects = ObjectTree::paths(*frontEnd.root());
    for (QObject* const object : objects) {
        Original& original = originals[object];
        if (original.object.isNull())
            original = {object, readAll(*object)};
    }
}

void FrontEndState::restore(const FrontEndState& older)
{
    const auto olderObjects = ObjectTree::paths(*older.frontEnd.root());
    QSet<QString> done;
    bool isChanged = true;
    // A value may create further objects, such as the content of a Loader.
    for (int pass = 0; isChanged && pass < mostPasses; ++pass) {
        isChanged = false;
        observe();
        const auto objects = ObjectTree::paths(*frontEnd.root());
        for (auto object = objects.begin(); object != objects.end(); ++object) {
            const QObject* const olderObject = olderObjects.value(object.key());
            if (olderObject == nullptr || done.contains(object.key()))
                continue;
            done.insert(object.key());
            isChanged |= restore(*object.value(), *olderObject, older.originals.value(olderObject).values);
        }
        frontEnd.picture(); // creates the items of lists
    }
}

bool FrontEndState::restore(QObject& object, const QObject& olderObject, const Values& olderValues) const
{
    const Values presentValues = readAll(olderObject);
    const Values originalValues = originals.value(&object).values;
    bool isChanged = false;
    for (auto olderValue = olderValues.begin(); olderValue != olderValues.end(); ++olderValue) {
        const QString& name = olderValue.key();
        const QVariant present = presentValues.value(name);
        if (present == olderValue.value() || originalValues.value(name) != olderValue.value())
            continue;
        const QQmlProperty property(&object, name);
        if (QQmlPropertyPrivate::binding(property) == nullptr)
            isChanged |= property.write(present);
    }
    return isChanged;
}

} // namespace Gallery
