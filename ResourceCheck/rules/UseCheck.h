#pragma once

#include "ResourceCheck/qml/KnownNames.h"
#include "ResourceCheck/qml/QmlUse.h"
#include "ResourceCheck/rules/Rule.h"

namespace ResourceCheck
{

/// Compares the names of one lookup with those that exist.
class UseCheck
{
public:
    /// Both must outlive the object.
    UseCheck(const QmlUse& checkedUse, const KnownNames& existingNames);

    /// Reports the names that do not exist, each where its text is written.
    void run(const Report& report) const;

private:
    QVector<QmlPattern> relevant(const QVector<QmlPattern>& patterns) const;
    bool areIndependent() const;
    bool isExact() const;
    bool exists(const QmlPattern& group, const QmlPattern& key) const;
    bool hasSomeGroup(const QmlPattern& key) const;
    bool hasSomeKey(const QmlPattern& group) const;
    bool isExcused(const QmlPattern& key) const;
    void checkKey(const QmlPattern& group, const QmlPattern& key, const Report& report) const;

    const QmlUse& use;
    const KnownNames& names;
    const QVector<QmlPattern> groups;
    const QVector<QmlPattern> keys;
};

} // namespace ResourceCheck
